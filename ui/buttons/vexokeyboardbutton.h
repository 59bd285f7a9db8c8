#pragma once
// SPDX-License-Identifier: MIT

#include "ui/buttons/activebutton.h"
#include "ui/foundation/vexocolors.h"

#include <QBrush>
#include <QFont>
#include <QSizeF>

#include <memory>

class QPainter;

namespace vexo::hox::qt::ui {

class ScalingInfo;

/// One key of an on-screen keyboard: a rounded cap with a centred label or icon, a light top edge
/// and a darker line under the cap. Keys with the object name "key" or "spaceButton" have the
/// background of standard keys, all others that of special keys. A pressed or latched (checked) key
/// is dark and shows its inverse icon.
///
/// The light edge is as wide as the key, so on a dark ground it shows beside the rounded corners:
/// set is_standard_border_drawing_disabled to false there, which draws the cap without edges.
///
/// The label is text(), drawn in the application's font at light weight. The width is what the
/// toolkit needs for it in the widget's font, 3 to 5 mm for a letter in 7 pt: set one.
class HOXQUI_EXPORT VexoKeyboardButton : public ActiveButton
{
    Q_OBJECT
    // The checker misreads a property that is broken before its type.
    // clazy:excludeall=qproperty-type-mismatch

    /// Cap of standard keys and the space bar. Default C1.
    Q_PROPERTY(QColor background_color READ backgroundColor WRITE setBackgroundColor)
    /// Cap of all other keys. Default C13.
    Q_PROPERTY(QColor background_special_key_color READ backgroundSpecialKeyColor WRITE
            setBackgroundSpecialKeyColor)
    /// Cap while pressed or checked. Default C4.
    Q_PROPERTY(
        QColor background_clicked_color READ backgroundClickedColor WRITE setBackgroundClickedColor)
    /// Cap while disabled. Default C6.
    Q_PROPERTY(QColor background_inactive_color READ backgroundInactiveColor WRITE
            setBackgroundInactiveColor)
    /// Outline of the cap. Default C3.
    Q_PROPERTY(QColor border_color READ borderColor WRITE setBorderColor)
    /// Label. Default C3.
    Q_PROPERTY(QColor text_color READ textColor WRITE setTextColor)
    /// Label while pressed or checked. Default C0.
    Q_PROPERTY(QColor text_clicked_color READ textClickedColor WRITE setTextClickedColor)
    /// Top edge and upper corners. Default C0.
    Q_PROPERTY(QColor border_top_color READ borderTopColor WRITE setBorderTopColor)
    /// Line under the cap. Default C5.
    Q_PROPERTY(QColor border_bottom_extra_color READ borderBottomExtraColor WRITE
            setBorderBottomExtraColor)
    /// Despite its name: whether top edge, corners and the line under the cap are drawn; the cap is
    /// 1 px shorter then. Default true.
    Q_PROPERTY(bool is_standard_border_drawing_disabled READ isStandardBorderDrawingDisabled WRITE
            setStandardBorderDrawingDisabled)
    /// Corner radius of the cap, mm. Default 0.7.
    Q_PROPERTY(double corner_radius READ cornerRadius WRITE setCornerRadius)
    /// Label height, pt. Default 13.0.
    Q_PROPERTY(double button_text_font_size_in_pt READ buttonTextFontSizeInPt WRITE
            setButtonTextFontSizeInPt)
    /// Fixed height of the key, mm. Default 8.0.
    Q_PROPERTY(double height_in_mm READ heightInMm WRITE setHeightInMm)

public:
    static const QString SHIFT_LEFT_BUTTON_OBJECT_NAME; ///< "shiftLeftButton"
    static const QString SHIFT_RIGHT_BUTTON_OBJECT_NAME; ///< "shiftRightButton"
    static const QString STANDARD_KEY_OBJECT_NAME; ///< "key"
    static const QString SPACE_BUTTON_OBJECT_NAME; ///< "spaceButton"

    explicit VexoKeyboardButton(QWidget *parent = nullptr);
    ~VexoKeyboardButton() override;

    QColor backgroundColor() const { return m_background_color; }
    void setBackgroundColor(const QColor &color);
    QColor backgroundSpecialKeyColor() const { return m_background_special_key_color; }
    void setBackgroundSpecialKeyColor(const QColor &color);
    QColor backgroundClickedColor() const { return m_background_clicked_color; }
    void setBackgroundClickedColor(const QColor &color);
    QColor backgroundInactiveColor() const { return m_background_inactive_color; }
    void setBackgroundInactiveColor(const QColor &color);
    QColor borderColor() const { return m_border_color; }
    void setBorderColor(const QColor &color);
    QColor textColor() const { return m_text_color; }
    void setTextColor(const QColor &color);
    QColor textClickedColor() const { return m_text_clicked_color; }
    void setTextClickedColor(const QColor &color);
    QColor borderTopColor() const { return m_border_top_color; }
    void setBorderTopColor(const QColor &color);
    QColor borderBottomExtraColor() const { return m_border_bottom_extra_color; }
    void setBorderBottomExtraColor(const QColor &color);
    bool isStandardBorderDrawingDisabled() const { return m_standard_border_drawing_disabled; }
    void setStandardBorderDrawingDisabled(bool disabled);
    double cornerRadius() const { return m_corner_radius_mm; }
    void setCornerRadius(double mm);
    double buttonTextFontSizeInPt() const { return m_button_text_font_size_pt; }
    void setButtonTextFontSizeInPt(double pt);
    double heightInMm() const { return m_height_mm; }
    void setHeightInMm(double mm);

    /// Size in which icons are rendered, mm; a width of 0 follows from the image. Default 0 x 4.7.
    /// Icons made before keep theirs until rerenderAll(). A negative size is ignored.
    void setCommonIconSizeMM(const QSizeF &mm);
    /// Releases a latched key.
    void resetButtonState();
    /// The cap of a key that is enabled, up and not latched.
    QBrush getStandardBrush();
    QIcon compute(const QString &path) override;

public Q_SLOTS:
    /// Latches or releases a checkable key.
    void onToggle(bool toggle_state);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Renderings;

    QRect capRect() const;
    void recolor(QColor *color, const QColor &to);
    QColor ground(bool is_dark);
    void drawCap(QPainter *painter, const QColor &ground);
    void drawWholeCap(QPainter *painter, const QColor &ground) const;
    void drawEdges(QPainter *painter, const QRect &cap) const;
    void drawLabel(QPainter *painter, const QRect &cap, bool is_dark, const QColor &ground);

    const ScalingInfo *const m_scaling;
    QFont m_button_font;
    float m_corner_radius_x = 0; // px
    float m_corner_radius_y = 0; // px
    QColor m_background_color = VexoColors::C1;
    QColor m_background_special_key_color = VexoColors::C13;
    QColor m_background_clicked_color = VexoColors::C4;
    QColor m_background_inactive_color = VexoColors::C6;
    QColor m_border_color = VexoColors::C3;
    QColor m_text_color = VexoColors::C3;
    QColor m_text_clicked_color = VexoColors::C0;
    QColor m_border_top_color = VexoColors::C0;
    QColor m_border_bottom_extra_color = VexoColors::C5;
    bool m_standard_border_drawing_disabled = true;
    double m_corner_radius_mm = 0.7;
    double m_button_text_font_size_pt = 13.0;
    double m_height_mm = 8.0;
    QSizeF m_common_icon_size_mm = QSizeF(0.0, 4.7);
    const std::unique_ptr<Renderings> m_renderings;
};

} // namespace vexo::hox::qt::ui
