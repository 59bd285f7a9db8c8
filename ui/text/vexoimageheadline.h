#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"

#include <QSizeF>
#include <QWidget>

class QLabel;
class QSpacerItem;

namespace vexo::hox::qt::ui {

class ScalingInfo;

/// A headline of fixed physical size: an icon, a small gap, a text. The library's stylesheets and
/// those of the application give it its ground; its labels have the object names
/// "vexoImageHeadlineIconLabel" and "vexoImageHeadlineTextLabel".
class HOXQUI_EXPORT VexoImageHeadline : public QWidget
{
    Q_OBJECT

    /// Default empty.
    Q_PROPERTY(QString label_text READ text WRITE setText)
    /// Text height, pt. Default 10.0.
    Q_PROPERTY(double pt_font_size READ ptFontSize WRITE setPtFontSize)
    /// Greatest width of the icon's place, mm. Default 9.0. A wider icon is cut.
    Q_PROPERTY(double image_canvas_width_mm READ imageCanvasWidthMM WRITE setImageCanvasWidthMM)
    /// Fixed height, mm. Default 10.0.
    Q_PROPERTY(double mm_height READ heightMM WRITE setHeightMM)
    /// Fixed width, mm. Default 70.0.
    Q_PROPERTY(double mm_width READ widthMM WRITE setWidthMM)
    /// Gap between icon and text, mm. Default 1.0.
    Q_PROPERTY(double spacer_size_in_mm READ spacerSizeInMm WRITE setSpacerSizeInMm)

public:
    explicit VexoImageHeadline(QWidget *parent = nullptr);
    /// With an icon and a text; throws as setSvgImage() does.
    VexoImageHeadline(const QString &svg_file, const QSizeF &svg_size_mm, const QString &text,
        QWidget *parent = nullptr);

    QString text() const;
    void setText(const QString &text);
    double ptFontSize() const { return m_pt_font_size; }
    void setPtFontSize(double pt);
    double imageCanvasWidthMM() const { return m_image_canvas_width_mm; }
    void setImageCanvasWidthMM(double mm);
    double heightMM() const { return m_mm_height; }
    void setHeightMM(double mm);
    double widthMM() const { return m_mm_width; }
    void setWidthMM(double mm);
    double spacerSizeInMm() const { return m_spacer_size_in_mm; }
    void setSpacerSizeInMm(double mm);
    /// Shows \a file at \a mm; a dimension of 0 follows from the image. Throws std::out_of_range
    /// for a negative size; the icon is unchanged then. A file that cannot be read shows nothing.
    void setSvgImage(const QString &file, const QSizeF &mm);

private:
    void setupUi();

    const ScalingInfo *const m_scaling;
    QLabel *const m_text_label;
    QLabel *const m_icon_label;
    QSpacerItem *m_spacer = nullptr;
    double m_pt_font_size = 10.0;
    double m_image_canvas_width_mm = 9.0;
    double m_mm_height = 10.0;
    double m_mm_width = 70.0;
    double m_spacer_size_in_mm = 1.0;
};

} // namespace vexo::hox::qt::ui
