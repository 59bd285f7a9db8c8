#pragma once
// SPDX-License-Identifier: MIT

#include "system/vexologging.h"
#include "ui/foundation/vexocolors.h"
#include "ui/hoxqui_export.h"

#include <QFont>
#include <QIcon>
#include <QLineEdit>
#include <QPainter>
#include <QPen>
#include <QPointer>
#include <QRectF>
#include <QSizeF>

#include <memory>

class QLabel;
class QWidgetAction;

namespace vexo::hox::qt::ui {

class CursorBlink;
class FieldContent;
class RoundedFrame;
class ScalingInfo;
class VexoFeedbackDelegator;
class VexoIconButton;
struct FieldLook;

/// The panel's text field: one line in a rounded frame. It stores its text as any QLineEdit but
/// draws itself: the text or a dot per character, a cursor of its own at the end of the text, and
/// behind it the characters that are still expected. A character is one of QString::size(). Text
/// that is too long is cut at the edge of the widget.
///
/// It takes no keyboard focus. The application puts text in, for example from an on-screen
/// keyboard, with setText(), or with insert() and backspace() after end(false): a touch moves the
/// toolkit's own cursor, which is not shown. textEditWanted() tells that the user touched the
/// field. A press rings the feedback delegator that was installed when the field was constructed.
///
/// The library's main stylesheet gives the field a ground of C1, which shows as light corners on
/// any other ground: there add "vexo--hox--qt--ui--VexoLineEdit { background: transparent; }" after
/// it.
///
/// The height is fixed: radius and vertical margin twice, and the frame line. Fields may be deleted
/// in each of their own signals. For assistive technology the field is a text, with the placeholder
/// as its description, or a password whose content is not told.
class HOXQUI_EXPORT VexoLineEdit // clazy:exclude=copyable-polymorphic
    : public QLineEdit,
      private vexo::hox::qt::system::VexoLogging
{
    Q_OBJECT
    // The checker misreads a property that is broken before its type.
    // clazy:excludeall=qproperty-type-mismatch

    /// What an empty field shows; n characters of text hide the first n. Default empty. A change
    /// ends m_underscores. Secret fields do not draw it.
    Q_PROPERTY(QString m_placeholder_text READ placeholderText WRITE setPlaceholderText)
    /// Number of underscores that are the placeholder, drawn with blanks between them. Default 0, a
    /// plain placeholder. A negative number is ignored, more than 32767 count as that many. A form
    /// sets its texts last, so leave the placeholder text alone there.
    Q_PROPERTY(int m_underscores MEMBER m_underscores WRITE setUnderscores)
    /// Default C2.
    Q_PROPERTY(QColor m_placeholder_color MEMBER m_placeholder_color WRITE setPlaceholderColor)
    /// Inside the frame. Default C0.
    Q_PROPERTY(QColor m_background_color READ backgroundColor WRITE setBackgroundColor)
    /// Frame, and the outline of dots. Default C12.
    Q_PROPERTY(QColor m_border_color READ borderColor WRITE setBorderColor)
    /// Text and dots. Default C3.
    Q_PROPERTY(QColor m_text_color READ textColor WRITE setTextColor)
    /// Text and dots while disabled. Default C6.
    Q_PROPERTY(QColor m_text_inactive_color READ textInactiveColor WRITE setTextInactiveColor)
    /// Default DEFAULT_CURSOR_COLOR.
    Q_PROPERTY(QColor cursor_color READ cursorColor WRITE setCursorColor)
    /// From the end of the text to the cursor and the placeholder, mm. Default 0.5.
    Q_PROPERTY(double m_cursor_mm_indent MEMBER m_cursor_mm_indent WRITE setCursorMmIndent)
    /// Moves text and dots to the right, mm; centred text stays. Default 0. A change shows with the
    /// next repaint.
    Q_PROPERTY(double left_offset_mm READ mmLeftOffset WRITE setMmLeftOffset)
    /// Time for which the cursor is shown or hidden, ms. Default 600. Ignored unless above 0.
    Q_PROPERTY(
        int cursor_ms_blink_interval READ cursorMsBlinkInterval WRITE setCursorMsBlinkInterval)
    /// Default 1. Ignored unless above 0, at most 32767.
    Q_PROPERTY(int cursor_px_pen_width READ cursorPxPenWidth WRITE setCursorPxPenWidth)
    /// Length of the cursor, mm. Default 4.0. Ignored unless above 0.
    Q_PROPERTY(double m_cursor_mm_height MEMBER m_cursor_mm_height WRITE setCursorMmHeight)
    /// Default QFont::Medium.
    Q_PROPERTY(int font_weight READ fontWeight WRITE setFontWeight)
    /// Shown at the leading edge once enableLeadingLabelAction() has run. Default null.
    Q_PROPERTY(QIcon m_leading_icon MEMBER m_leading_icon WRITE setLeadingIcon)
    /// Icon of the trailing button, shown once enableTrailingButtonAction() has run. Default null.
    Q_PROPERTY(QIcon m_trailing_icon MEMBER m_trailing_icon WRITE setTrailingIcon)
    /// mm, default 5 x 5. The width is the room that the text leaves to the icon.
    Q_PROPERTY(
        QSizeF m_mm_leading_icon_size MEMBER m_mm_leading_icon_size WRITE setMmLeadingIconSize)
    /// mm, default 5 x 5. Negative or NaN throws std::out_of_range and changes nothing.
    Q_PROPERTY(
        QSizeF m_mm_trailing_icon_size MEMBER m_mm_trailing_icon_size WRITE setMmTrailingIconSize)
    /// Left of the text, above and below it, mm. Default 0 x 0. The height adds to the field's.
    Q_PROPERTY(QSizeF m_mm_margin READ mmMargin WRITE setMmMargin)
    /// Corner radius, half the height of a field without margin and line, mm. Default 3.0. Negative
    /// is ignored.
    Q_PROPERTY(double m_mm_radius READ mmRadius WRITE setMmRadius)
    /// Thickness of the frame, mm. Default 0.176. Negative is ignored.
    Q_PROPERTY(double m_mm_pen_line READ mmPenLine WRITE setMmPenLine)
    /// Text height, pt. Default 9.0. Negative is ignored.
    Q_PROPERTY(double m_pt_font_size READ ptFontSize WRITE setPtFontSize)
    /// Draws a dot per character, and neither cursor nor placeholder. Default false. The echo mode
    /// follows, so that nothing else tells the text either; what was typed cannot be undone. An
    /// echo mode that is not Normal hides the text all the same; NoEcho draws no dots.
    Q_PROPERTY(
        bool m_draw_password_secured READ isDrawedPasswordSecured WRITE setDrawPasswordSecured)
    /// Centres text, cursor and placeholder. Default false.
    Q_PROPERTY(bool m_draw_centered READ isDrawedCentered WRITE setDrawCentered)

public:
    static constexpr QColor DEFAULT_CURSOR_COLOR{ 0, 0, 0 }; ///< black

    explicit VexoLineEdit(QWidget *parent = nullptr);
    ~VexoLineEdit() override;

    QString placeholderText() const { return m_placeholder_text; }
    void setPlaceholderText(const QString &text);
    void setUnderscores(int count);
    void setPlaceholderColor(const QColor &color) { repaintWith(&m_placeholder_color, color); }
    QColor backgroundColor() const { return m_background_color; }
    void setBackgroundColor(const QColor &color);
    QColor borderColor() const { return m_border_color; }
    void setBorderColor(const QColor &color);
    QColor textColor() const { return m_text_color; }
    void setTextColor(const QColor &color) { repaintWith(&m_text_color, color); }
    QColor textInactiveColor() const { return m_text_inactive_color; }
    void setTextInactiveColor(const QColor &color) { repaintWith(&m_text_inactive_color, color); }
    QColor cursorColor() const { return m_cursor_pen.color(); }
    void setCursorColor(const QColor &color);
    void setCursorMmIndent(double mm) { repaintWith(&m_cursor_mm_indent, mm); }
    double mmLeftOffset() const { return m_left_offset_mm; }
    void setMmLeftOffset(double mm) { m_left_offset_mm = mm; }
    int cursorMsBlinkInterval() const;
    void setCursorMsBlinkInterval(int ms);
    int cursorPxPenWidth() const { return m_cursor_pen.width(); }
    void setCursorPxPenWidth(int px);
    void setCursorMmHeight(double mm);
    int fontWeight() const { return m_font_weight; }
    void setFontWeight(int weight);
    void setLeadingIcon(const QIcon &icon);
    void setTrailingIcon(const QIcon &icon);
    void setMmLeadingIconSize(const QSizeF &mm);
    void setMmTrailingIconSize(const QSizeF &mm);
    QSizeF mmMargin() const { return m_mm_margin; }
    void setMmMargin(const QSizeF &mm);
    double mmRadius() const { return m_mm_radius; }
    void setMmRadius(double mm) { takeMeasure(&m_mm_radius, mm); }
    double mmPenLine() const { return m_mm_pen_line; }
    void setMmPenLine(double mm) { takeMeasure(&m_mm_pen_line, mm); }
    double ptFontSize() const { return m_pt_font_size; }
    void setPtFontSize(double pt);
    bool isDrawedPasswordSecured() const { return m_draw_password_secured; }
    void setDrawPasswordSecured(bool secured);
    bool isDrawedCentered() const { return m_draw_centered; }
    void setDrawCentered(bool centered) { repaintWith(&m_draw_centered, centered); }
    /// Whether dots are centred or start at the left. Default true. A change shows with the next
    /// repaint.
    bool isDrawedSecuredCentered() const { return m_draw_secured_centered; }
    /// See isDrawedSecuredCentered().
    void setDrawSecuredCentered(bool centered) { m_draw_secured_centered = centered; }

    /// Shows a blinking cursor, or hides it. Default hidden. Shows with the next repaint.
    void setCursorState(bool on);
    /// Makes a label at the leading edge that shows the leading icon. A further call makes a
    /// further action with the same label; to delete one of them takes the label away.
    void enableLeadingLabelAction();
    /// Makes the button "trailingButton" at the trailing edge, typically a delete key; each of its
    /// clicks emits deleteButtonClick(), once per call of this operation.
    void enableTrailingButtonAction();
    /// Shakes the content sideways, to say that it is wrong: what was painted last is shown while
    /// it shakes, even if the field is cleared at once. \a show_text must be true for a plain field
    /// and false for a secret one. Lasts about \a duration_ms (100 to 2000 ms) and swings with
    /// \a oscillations per second (3 to 20), at first by \a amplitude_px (1 to 20 px); other values
    /// are clamped. A shake during a shake goes on from the place of now. No cursor and no
    /// placeholder are shown meanwhile.
    void shake(unsigned int duration_ms, unsigned int oscillations, unsigned int amplitude_px,
        bool show_text);

    /// Of a secret text input methods learn no more than its length.
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override
    {
        return inputMethodQuery(query, QVariant());
    }
    Q_INVOKABLE QVariant inputMethodQuery(Qt::InputMethodQuery query, QVariant argument) const;

Q_SIGNALS:
    /// The field was touched: the finger was lifted, wherever, and its press was not taken back.
    void textEditWanted(QString current_text);
    /// The trailing button was clicked.
    void deleteButtonClick();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;

private Q_SLOTS:
    void onCursorTimeout();
    void onShakeAnimationStep();

private:
    template <typename Value>
    void repaintWith(Value *member, const Value &value)
    {
        *member = value;
        update();
    }

    bool isSecret() const { return m_draw_password_secured || echoMode() != Normal; }
    void takeMeasure(double *member, double mm);
    void applyMeasures();
    void calculateCursorPosition();
    VexoIconButton *trailingButton();

    FieldLook fieldLook() const;

    const ScalingInfo *const m_scaling;
    const QPointer<VexoFeedbackDelegator> m_tone_delegator;
    CursorBlink *const m_cursor_timer;
    QPointer<QWidgetAction> m_leading_action;
    QPointer<QWidgetAction> m_trailing_action;
    QPointer<QLabel> m_leading_label; // made when it is used; so is all that may be null here
    QPointer<VexoIconButton> m_trailing_button;
    QFont m_font;
    const std::unique_ptr<RoundedFrame> m_frame;
    QPen m_cursor_pen = QPen(DEFAULT_CURSOR_COLOR, 1);
    QPainter m_painter;
    int m_cursor_top = 0; // px
    int m_cursor_bottom = 0; // px
    QPointF m_px_margin;
    QPointF m_px_pen_line;
    bool m_cursor_visible = false;
    QString m_placeholder_text;
    QColor m_placeholder_color = VexoColors::C2;
    QColor m_background_color = VexoColors::C0;
    QColor m_border_color = VexoColors::C12;
    QColor m_text_color = VexoColors::C3;
    QColor m_text_inactive_color = VexoColors::C6;
    QIcon m_leading_icon;
    QIcon m_trailing_icon;
    QSizeF m_mm_leading_icon_size = QSizeF(5, 5);
    QSizeF m_mm_trailing_icon_size = QSizeF(5, 5);
    QSizeF m_mm_margin = QSizeF(0, 0);
    int m_underscores = 0;
    double m_cursor_mm_indent = 0.5;
    double m_cursor_mm_height = 4.0;
    double m_left_offset_mm = 0.0;
    double m_pt_font_size = 9.0;
    int m_font_weight = QFont::Medium;
    double m_mm_radius = 3.0;
    double m_mm_pen_line = 0.176;
    bool m_draw_password_secured = false;
    bool m_draw_centered = false;
    bool m_draw_secured_centered = true;
    const std::unique_ptr<FieldContent> m_content;
};

} // namespace vexo::hox::qt::ui
