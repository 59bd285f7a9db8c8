#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"

#include <QPointer>
#include <QWidget>

class QLabel;
class QSpacerItem;

namespace vexo::hox::qt::ui {

class ScalingInfo;
class VexoIconButton;

/// A tile of fixed physical size: an icon button, and centred below it a text line and a lighter
/// subtext line. Only the icon can be pressed: connect to getButtonInstance(). The library's main
/// stylesheet gives the tile its ground. Texts that are wider than the tile are cut at both ends.
///
/// The texts also become accessible name and description of the icon button. The tile may be
/// deleted in each signal of the icon that may delete the icon, see there.
class HOXQUI_EXPORT VexoCenteredVectorButton : public QWidget
{
    Q_OBJECT
    // The checker misreads a property that is broken before its type.
    // clazy:excludeall=qproperty-type-mismatch

    /// File of the icon of the state "DEFAULT". Default empty.
    Q_PROPERTY(QString m_icon_path READ iconPath WRITE setIconPath)
    /// Default empty.
    Q_PROPERTY(QString text READ text WRITE setText)
    /// Default empty.
    Q_PROPERTY(QString subtext READ subtext WRITE setSubtext)
    /// Fixed width, mm. Default 30.0.
    Q_PROPERTY(double m_width_in_mm READ widthInMm WRITE setWidthInMm)
    /// Fixed height, mm. Default 28.0.
    Q_PROPERTY(double m_height_in_mm READ heightInMm WRITE setHeightInMm)
    /// Width and height of the icons, mm. Default 14.0. Renders all icons anew; a negative size or
    /// NaN throws std::out_of_range "Negative image size parameter is impossible!" and changes
    /// nothing.
    Q_PROPERTY(double m_icon_size_in_mm READ iconSizeInMm WRITE setIconSizeInMm)
    /// Height of the text, pt. Default 9.0.
    Q_PROPERTY(double m_text_font_size_in_pt READ textFontSizeInPt WRITE setTextFontSizeInPt)
    /// Height of the subtext, pt. Default 9.0.
    Q_PROPERTY(
        double m_subtext_font_size_in_pt READ subtextFontSizeInPt WRITE setSubtextFontSizeInPt)
    /// At the left and at the right of the icon, mm. Default 7.0.
    Q_PROPERTY(
        double m_icon_side_spacing_in_mm READ iconSideSpacingInMm WRITE setIconSideSpacingInMm)
    /// Above the icon, mm. Default 5.0.
    Q_PROPERTY(double m_icon_top_spacing_in_mm READ iconTopSpacingInMm WRITE setIconTopSpacingInMm)
    /// Between icon and text, mm. Default 1.7.
    Q_PROPERTY(double m_icon_bottom_spacing_in_mm READ iconBottomSpacingInMm WRITE
            setIconBottomSpacingInMm)

public:
    explicit VexoCenteredVectorButton(QWidget *parent = nullptr);

    /// The icon, which belongs to the tile; null once it was deleted, which the tile tolerates.
    VexoIconButton *getButtonInstance();
    /// Makes the icon of \a state from \a file, in the size of the others. A state that has an icon
    /// keeps it, see ActiveButton::addIcon().
    void addIcon(const QString &state, const QString &file);

    QString iconPath() const { return m_icon_path; }
    void setIconPath(const QString &path);
    QString text() const;
    void setText(const QString &text);
    QString subtext() const;
    void setSubtext(const QString &text);
    double widthInMm() const { return m_width_in_mm; }
    void setWidthInMm(double mm);
    double heightInMm() const { return m_height_in_mm; }
    void setHeightInMm(double mm);
    double iconSizeInMm() const { return m_icon_size_in_mm; }
    void setIconSizeInMm(double mm);
    double textFontSizeInPt() const { return m_text_font_size_in_pt; }
    void setTextFontSizeInPt(double pt);
    double subtextFontSizeInPt() const { return m_subtext_font_size_in_pt; }
    void setSubtextFontSizeInPt(double pt);
    double iconSideSpacingInMm() const { return m_icon_side_spacing_in_mm; }
    void setIconSideSpacingInMm(double mm);
    double iconTopSpacingInMm() const { return m_icon_top_spacing_in_mm; }
    void setIconTopSpacingInMm(double mm);
    double iconBottomSpacingInMm() const { return m_icon_bottom_spacing_in_mm; }
    void setIconBottomSpacingInMm(double mm);

private:
    void setupUi();
    void setUpIconRow();

    const ScalingInfo *const m_scaling;
    const QPointer<VexoIconButton> m_icon_button;
    const QPointer<QLabel> m_text_label;
    const QPointer<QLabel> m_subtext_label;
    QSpacerItem *m_left_spacer = nullptr;
    QSpacerItem *m_right_spacer = nullptr;
    QSpacerItem *m_top_spacer = nullptr;
    QSpacerItem *m_bottom_spacer = nullptr;
    QWidget *const m_icon_row;
    QString m_icon_path;
    double m_width_in_mm = 30.0;
    double m_height_in_mm = 28.0;
    double m_icon_size_in_mm = 14.0;
    double m_text_font_size_in_pt = 9.0;
    double m_subtext_font_size_in_pt = 9.0;
    double m_icon_side_spacing_in_mm = 7.0;
    double m_icon_top_spacing_in_mm = 5.0;
    double m_icon_bottom_spacing_in_mm = 1.7;
};

} // namespace vexo::hox::qt::ui
