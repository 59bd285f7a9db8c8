#pragma once
// SPDX-License-Identifier: MIT

#include "ui/foundation/vexocolors.h"

#include <QLabel>
#include <QPointer>
#include <QVector>

namespace vexo::hox::qt::ui {

class ScalingInfo;

/// A row of two texts, wrapped in columns of fixed widths, in one colour on a ground of one colour.
/// Both columns are 0 mm wide until their widths are set. The colours are those of a stylesheet of
/// the two labels; a stylesheet that is set on them by hand lasts until the next colour.
class HOXQUI_EXPORT VexoHorizontalLabelWidget : public QWidget
{
    Q_OBJECT

    /// Empty by default. Plain text, unless the label's setTextFormat() is told otherwise.
    Q_PROPERTY(QString left_label_text MEMBER m_left_text WRITE setLeftLabelText)
    /// Empty by default, as the left one.
    Q_PROPERTY(QString right_label_text MEMBER m_right_text WRITE setRightLabelText)
    /// Both texts, without alpha. Default C0.
    Q_PROPERTY(QColor text_color MEMBER m_text_color WRITE setTextColor)
    /// Ground of both labels, without alpha. Default C4.
    Q_PROPERTY(QColor background_color MEMBER m_background_color WRITE setBackgroundColor)
    /// Text height, whole pt. Default 12.
    Q_PROPERTY(int pt_font_size MEMBER m_pt_font_size WRITE setPtFontSize)
    /// Space before each text, mm. Default 0.0.
    Q_PROPERTY(double mm_indent MEMBER m_mm_indent WRITE setMmIndent)
    /// Fixed width of the left label, mm. Default 0.0.
    Q_PROPERTY(double left_label_mm_width MEMBER m_left_label_mm_width WRITE setLeftLabelMmWidth)
    /// Fixed width of the right label, mm. Default 0.0.
    Q_PROPERTY(double right_label_mm_width MEMBER m_right_label_mm_width WRITE setRightLabelMmWidth)
    /// Fixed height of the row and both labels, mm. Default 10.0.
    Q_PROPERTY(double mm_height MEMBER m_mm_height WRITE setMmHeight)

public:
    explicit VexoHorizontalLabelWidget(QWidget *parent = nullptr);

    void setLeftLabelText(const QString &text);
    void setRightLabelText(const QString &text);
    void setTextColor(const QColor &color);
    void setBackgroundColor(const QColor &color);
    void setPtFontSize(int pt);
    void setMmIndent(double mm);
    void setLeftLabelMmWidth(double mm);
    void setRightLabelMmWidth(double mm);
    void setMmHeight(double mm);

    /// Named "leftLabel", owned by the row; null once it was deleted, which the setters tolerate.
    QLabel *leftLabel() const { return m_left_label; }
    /// Named "rightLabel", otherwise as the left one.
    QLabel *rightLabel() const { return m_right_label; }
    /// Gives both labels a stylesheet of the two colours. The setters of the colours do it.
    void setStyleSheetFromColors() const;

private:
    void setupUi();
    QVector<QLabel *> labels() const;

    const QPointer<QLabel> m_left_label;
    const QPointer<QLabel> m_right_label;
    const ScalingInfo *const m_scaling;
    QString m_left_text;
    QString m_right_text;
    QColor m_text_color = VexoColors::C0;
    QColor m_background_color = VexoColors::C4;
    int m_pt_font_size = 12;
    double m_mm_indent = 0.0;
    double m_left_label_mm_width = 0.0;
    double m_right_label_mm_width = 0.0;
    double m_mm_height = 10.0;
};

} // namespace vexo::hox::qt::ui
