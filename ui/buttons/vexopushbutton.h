#pragma once
// SPDX-License-Identifier: MIT

#include "system/vexologging.h"
#include "ui/buttons/buttonstate.h"
#include "ui/buttons/easyaccessbutton.h"
#include "ui/foundation/cachedvectoricon.h"
#include "ui/foundation/vexocolors.h"

#include <QMap>
#include <QPen>
#include <QPushButton>
#include <QSizeF>

#include <memory>

class QFontMetrics;

namespace vexo::hox::qt::ui {

class ButtonTexts;
class IconRendering;
class RoundedFrame;
class ScalingInfo;
class StyledBackground;
class VisibleBuddies;
struct TextContent;
struct TextPlace;

/// The panel's push button: a label in a pill-shaped outline, or on a plain filled rectangle, with
/// an optional image near its left or right end and an optional second text at its right end. A
/// label that does not fit on one line is cut, between any two characters, into two.
///
/// Its height is twice the sum of corner radius and vertical margin: 12 mm at first, 10 mm once it
/// has an image, whose margin is smaller. The width that it asks for leaves no room for its
/// margins: set one. It takes no focus, shows and hides other widgets with itself, rings the
/// feedback delegator that was installed when it was constructed, and a finger that slides up to 20
/// px off it still clicks. It may be deleted in its pressed(), released() and clicked(), but
/// not in toggled(). Assistive technology reads the second text as its description.
///
/// Images are rendered when they are set, one for each ButtonState; a state without one shows the
/// image of Standard. A button that has images but neither one for its state nor one for Standard
/// throws std::logic_error out of its paint. The toolkit does not expect that: an application in
/// which it can happen overrides QApplication::notify() and catches it there.
class HOXQUI_EXPORT VexoPushButton // clazy:exclude=copyable-polymorphic
    : public QPushButton,
      vexo::hox::qt::system::VexoLogging,
      public EasyAccessButton
{
    Q_OBJECT
    // The checker misreads a property that is broken before its type.
    // clazy:excludeall=qproperty-type-mismatch

    /// Space between the widget's edges and the outline, mm. Default 3.0 x 3.0; setting an image
    /// makes it 0.2 x 2.0, removing them the default again. Changes the fixed height.
    Q_PROPERTY(QSizeF m_mm_margin READ mmMargin WRITE setMmMargin)
    /// Default C1.
    Q_PROPERTY(QColor m_background_color READ backgroundColor WRITE setBackgroundColor)
    /// While down or checked. Default C6.
    Q_PROPERTY(QColor m_background_clicked_color READ backgroundClickedColor WRITE
            setBackgroundClickedColor)
    /// Both texts. Default C3.
    Q_PROPERTY(QColor m_text_color READ textColor WRITE setTextColor)
    /// Both texts while down. Default C0.
    Q_PROPERTY(QColor m_text_clicked_color READ textClickedColor WRITE setTextClickedColor)
    /// Both texts while disabled. Default C6.
    Q_PROPERTY(QColor m_text_inactive_color READ textInactiveColor WRITE setTextInactiveColor)
    /// Outline. Default C12.
    Q_PROPERTY(QColor pen_color READ penColor WRITE setPenColor)
    /// Corner radius of the outline, mm. Default 3.0. Changes the fixed height.
    Q_PROPERTY(double m_mm_radius MEMBER m_mm_radius WRITE setMmRadius)
    /// Thickness of the outline, mm. Default 0.176; but the outline is 1 px thick until this is
    /// set.
    Q_PROPERTY(double m_mm_pen_line MEMBER m_mm_pen_line WRITE setMmPenLine)
    /// From the margin to the centre of the image, mm. Default 3.5. Shows with the next paint.
    Q_PROPERTY(double m_mm_horiz_center_distance_from_border MEMBER
            m_mm_horiz_center_distance_from_border WRITE setMmHorizCenterDistanceFromBorder)
    /// Height of the texts, pt. Default 10.0.
    Q_PROPERTY(double m_pt_font_size MEMBER m_pt_font_size WRITE setPtFontSize)
    /// Image at the right end. Default false. The image moves only with the next change of margin,
    /// radius, distance or image, and stays where that put it when the button is resized.
    Q_PROPERTY(bool m_align_image_right READ alignImageRight WRITE setAlignImageRight)
    /// Outline inside the margin; without it the whole widget is filled. Default true.
    Q_PROPERTY(bool m_draw_button_border READ drawButtonBorder WRITE setDrawButtonBorder)
    /// Space at the sides of the texts, mm. Default 0.0. Shows with the next paint. Qt Designer
    /// knows no float and does not offer it.
    Q_PROPERTY(float m_text_mm_margin_x READ textMmMarginX WRITE setTextMmMarginX)
    /// Of each text. Default Qt::AlignCenter. Shows with the next paint.
    Q_PROPERTY(Qt::Alignment m_text_alignment READ textAlignment WRITE setTextAlignment)
    /// Second text. Default empty. Shows with the next paint.
    Q_PROPERTY(QString m_right_side_text MEMBER m_right_side_text WRITE setRightSideText)

public:
    static const QSizeF STANDARD_ICON_SIZE_IN_MM; ///< 0.0 x 4.7: as wide as the image makes it
    static const QSizeF STANDARD_ICON_MARGIN_IN_MM; ///< 0.0 x 0.0: for applications
    static const QSizeF STANDARD_MARGIN_IN_MM; ///< 3.0 x 3.0: margin without image
    static const QSizeF ICON_MARGIN_IN_MM; ///< 0.2 x 2.0: margin with image
    static const double LINE_WITH_IN_MM; ///< 0.176: thickness of the outline
    static const QColor STANDARD_PEN_COLOR; ///< C12: the outline

    explicit VexoPushButton(QWidget *parent = nullptr);
    ~VexoPushButton() override;

    /// Renders the image of \a state at \a mm, in place of an earlier one; a width of 0 follows
    /// from the image. Throws std::out_of_range for a negative size; nothing has changed then.
    void setSvgImage(const QString &path, const QSizeF &mm, ButtonState state);
    /// The same at STANDARD_ICON_SIZE_IN_MM.
    void setSvgImage(const QString &path, ButtonState state);
    /// The images of Standard, Clicked and Inactive, at STANDARD_ICON_SIZE_IN_MM or at \a mm.
    void setSvgImage(const QString &standard, const QString &clicked);
    void setSvgImage(const QString &standard, const QString &clicked, const QString &inactive);
    void setSvgImage(const QString &standard, const QString &clicked, const QSizeF &mm);
    void setSvgImage(
        const QString &standard, const QString &clicked, const QString &inactive, const QSizeF &mm);
    /// Drops the images of all states; the margin is STANDARD_MARGIN_IN_MM again.
    void removeImage();
    /// Shows the image of Hidden, an empty one unless it was set, whatever the state.
    void hideImage(bool hide);
    /// The image of \a state, or else that of Standard. Throws std::logic_error "No standard icon
    /// for VexoPushButton set" when there is neither. Valid until images are set or removed.
    CachedVectorIcon &getIconForState(const ButtonState &state);
    /// Makes room for an image as large as \a icon: takes its size and ICON_MARGIN_IN_MM.
    void setIconSize(const CachedVectorIcon &icon);
    using QPushButton::setIconSize;

    QSizeF mmMargin() const { return m_mm_margin; }
    void setMmMargin(const QSizeF &mm);
    void setMmRadius(double mm);
    void setMmHorizCenterDistanceFromBorder(double mm);
    /// Places the image from margin, radius, distance, side and width of the button.
    void setIconDimension();
    /// Fixes the height from radius and margin.
    void setHeight();
    bool drawButtonBorder() const { return m_draw_button_border; }
    void setDrawButtonBorder(bool draw);
    bool alignImageRight() const { return m_align_image_right; }
    void setAlignImageRight(bool right);

    void setPtFontSize(double pt);
    float textMmMarginX() const { return m_text_mm_margin_x; }
    void setTextMmMarginX(float mm) { m_text_mm_margin_x = mm; }
    Qt::Alignment textAlignment() const { return m_text_alignment; }
    void setTextAlignment(Qt::Alignment alignment) { m_text_alignment = alignment; }
    void setRightSideText(const QString &text);
    /// Whether the label does not fit on one line beside the second text.
    bool hasTwoLines() const;
    /// The beginning of \a text that is not wider than \a rect, cut after any character.
    QString findFittingString(const QFontMetrics &metrics, const QString &text, const QRectF &rect);

    QColor backgroundColor() const { return m_background_color; }
    void setBackgroundColor(const QColor &color);
    QColor backgroundClickedColor() const { return m_background_clicked_color; }
    void setBackgroundClickedColor(const QColor &color);
    QColor textColor() const { return m_text_color; }
    void setTextColor(const QColor &color);
    QColor textClickedColor() const { return m_text_clicked_color; }
    void setTextClickedColor(const QColor &color);
    QColor textInactiveColor() const { return m_text_inactive_color; }
    void setTextInactiveColor(const QColor &color);
    QColor penColor() const { return m_pen.color(); }
    void setPenColor(const QColor &color);
    void setMmPenLine(double mm);

    /// Shows and hides \a buddy with the button from the next setVisible() on, in the order of the
    /// calls. Not owned; null is ignored.
    void addVisibleBuddy(QWidget *buddy);
    /// Forgets the buddies; they keep their visibility.
    void clearVisibleBuddies();
    /// What the constructor sets up, tone, font and measures; calling it again resets those.
    void setupUi();

public Q_SLOTS:
    void setVisible(bool visible) override;

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void setAndRepaint(QColor *field, const QColor &color);
    void storeImage(const QString &path, const QSizeF &mm, ButtonState state);
    TextPlace drawGround(QPainter *painter, const QRect &dirty);
    TextContent textsOfNow() const;

    const ScalingInfo *const m_scaling;
    QSizeF m_mm_icon_size;
    QSize m_px_icon_size = QSize(0, 0);
    QRect m_icon_rect; // px
    const std::unique_ptr<VisibleBuddies> m_visible_buddies;
    QMap<ButtonState, CachedVectorIcon> m_icons;
    QSizeF m_px_margin;
    QSizeF m_px_radius;
    bool m_image_hidden = false;
    QSizeF m_mm_margin = QSizeF(-1, -1);
    QColor m_background_color = VexoColors::C1;
    QColor m_background_clicked_color = VexoColors::C6;
    QColor m_text_color = VexoColors::C3;
    QColor m_text_clicked_color = VexoColors::C0;
    QColor m_text_inactive_color = VexoColors::C6;
    QPen m_pen;
    QString m_right_side_text;
    float m_text_mm_margin_x = 0;
    double m_mm_radius = 3.0;
    double m_mm_pen_line = LINE_WITH_IN_MM;
    double m_pt_font_size = 10.0;
    double m_mm_horiz_center_distance_from_border = 3.5;
    bool m_align_image_right = false;
    bool m_draw_button_border = true;
    Qt::Alignment m_text_alignment = Qt::AlignCenter;

    const std::unique_ptr<StyledBackground> m_styled_background;
    const std::unique_ptr<RoundedFrame> m_pill;
    const std::unique_ptr<ButtonTexts> m_texts;
    std::unique_ptr<IconRendering> m_image; // made with each image
};

} // namespace vexo::hox::qt::ui
