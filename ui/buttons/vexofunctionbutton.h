#pragma once
// SPDX-License-Identifier: MIT

#include "system/vexologging.h"
#include "ui/foundation/vexocolors.h"

#include <QPixmap>
#include <QPointer>
#include <QSizeF>
#include <QToolButton>

#include <memory>

class QLabel;
class QSpacerItem;

namespace vexo::hox::qt::ui {

class RowLabel;
class RowLayout;
class ScalingInfo;
class TapLimit;
class VexoFeedbackDelegator;
class VisibleBuddies;

/// A row of the panel's lists and settings screens, 9.8 mm high: a text at the left, and at the
/// right a check box, a radio button, an arrow or a tick box. The whole row reacts to touch, except
/// with a tick box, where only that does. A finger that moves further than a few px while down is
/// swiping through the list, and does not click.
///
/// A row that is a radio choice itself stays dark while it is chosen; rows below one parent exclude
/// each other. Radio buttons on rows are grouped by the application: their getButtonInstance()s
/// into a QButtonGroup.
///
/// The row draws its ground, whatever a stylesheet says; text and right-hand widget are children
/// with the names "vexoFunctionButtonLabel" and "vexoFunctionButtonWidgetRight". Assistive
/// technology sees it as one object with the text, the role and the checked state of what it shows.
/// A press rings the feedback delegator that was installed when the row was constructed. It may be
/// deleted, and its type changed, in pressed() and clicked(), also in those of its right-hand
/// widget; but not in toggled() and stateChanged(), after which the toolkit goes on with it.
class HOXQUI_EXPORT VexoFunctionButton // clazy:exclude=copyable-polymorphic
    : public QToolButton,
      private vexo::hox::qt::system::VexoLogging
{
    Q_OBJECT
    // The checker misreads a property that is broken before its type.
    // clazy:excludeall=qproperty-type-mismatch

    /// Default CheckboxType. A change replaces the right-hand widget and the gap after it, and
    /// keeps no checked state, except that of a row which stays a FullsizeRadiobuttonType.
    Q_PROPERTY(VexoFunctionButtonType m_button_type MEMBER m_button_type WRITE setButtonType)
    /// Default empty.
    Q_PROPERTY(QString button_text READ text WRITE setText)
    /// Default C3.
    Q_PROPERTY(QColor m_text_color READ textColor WRITE setTextColor)
    /// Of a row with an arrow while down. Default C0.
    Q_PROPERTY(QColor m_text_clicked_color READ textClickedColor WRITE setTextClickedColor)
    /// While disabled. Default C6. On a row with an arrow a change shows when it is next disabled.
    Q_PROPERTY(QColor m_text_inactive_color READ textInactiveColor WRITE setTextInactiveColor)
    /// Default C1.
    Q_PROPERTY(QColor m_background_color READ backgroundColor WRITE setBackgroundColor)
    /// Of a row with an arrow while down or checked. Default C4.
    Q_PROPERTY(QColor m_background_clicked_color READ backgroundClickedColor WRITE
            setBackgroundClickedColor)
    /// Space before the text, mm. Default 3.0.
    Q_PROPERTY(double m_mm_indent READ mmIndent WRITE setMmIndent)
    /// Height of the text, pt. Default 9.0. A change makes the text medium again.
    Q_PROPERTY(double m_text_font_size_in_pt READ textFontSizeInPt WRITE setTextFontsizeInPt)

public:
    /// What is at the right, and what a tap does.
    enum VexoFunctionButtonType : int {
        CheckboxType, ///< a VexoCheckBox, which it toggles
        ActionType, ///< an arrow; clicks
        RadiobuttonType, ///< a VexoRadioButton, which it chooses
        FullsizeRadiobuttonType, ///< an arrow; the row itself is chosen
        TickAgreementType ///< a tick box, a VexoIconButton that stays ticked once it was touched
    };
    Q_ENUM(VexoFunctionButtonType)

    static const QSizeF ICON_SIZE; ///< of the arrow, mm: 0 x 8, as wide as the image makes it

    /// A row of a type, which can be changed later.
    explicit VexoFunctionButton(
        QWidget *parent = nullptr, const VexoFunctionButtonType &type = CheckboxType);
    ~VexoFunctionButton() override;

    void setButtonType(VexoFunctionButtonType type);
    QString text() const;
    void setText(const QString &text);
    QColor textColor() const { return m_text_color; }
    void setTextColor(const QColor &color);
    QColor textClickedColor() const { return m_text_clicked_color; }
    void setTextClickedColor(const QColor &color);
    QColor textInactiveColor() const { return m_text_inactive_color; }
    void setTextInactiveColor(const QColor &color);
    QColor backgroundColor() const { return m_background_color; }
    void setBackgroundColor(const QColor &color);
    QColor backgroundClickedColor() const { return m_background_clicked_color; }
    void setBackgroundClickedColor(const QColor &color);
    double mmIndent() const { return m_mm_indent; }
    void setMmIndent(double mm);
    double textFontSizeInPt() const { return m_text_font_size_in_pt; }
    /// Gives the label the application's font at \a pt points and \a weight (QFont::Weight).
    void setTextFontsizeInPt(double pt, int weight = 57);
    /// Lasts until the next setTextFontsizeInPt().
    void setFontWeight(int weight);
    /// Gap after the right-hand widget, mm; below 0 and NaN are ignored. Lasts until the next
    /// setButtonType(), which sets 2.0 after a check box or radio button and 3.0 after the others.
    void setMmRightSpacer(float mm);

    /// The text, which belongs to the row: plain, unless its setTextFormat() is told otherwise.
    /// Null once it was deleted.
    QLabel *getLabelInstance() const;
    /// What holds the checked state: check box, radio button or tick box, with an arrow the row
    /// itself. Valid until the next setButtonType().
    QAbstractButton *getButtonInstance() const;
    /// How far the finger may move in x or y while down, px. Default 10; where TapDistance::mm()
    /// is set (by Panel::setUp() to 5 mm), that holds in its place until a distance is set here.
    int getMouseMoveDelta() const;
    /// Ignored below 3 and above 24.
    void setMouseMoveDelta(int px);

    /// Shows and hides \a buddy with the row, in the order of the calls, and hides it at once.
    /// Returns it. Not owned; null is ignored.
    QWidget *addVisibleBuddy(QWidget *buddy);
    /// Forgets the buddies; they keep their visibility.
    void clearVisibleBuddies();

public Q_SLOTS:
    void setVisible(bool visible) override;

Q_SIGNALS:
    /// The row itself was checked or unchecked, by touch or by a call.
    void stateChanged(bool has_state_changed);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void checkStateSet() override;
    void nextCheckState() override;
    void changeEvent(QEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private Q_SLOTS:
    void tickAgreementClicked();

private:
    void setupLabel();
    void setupRightWidget();
    void setupArrow();
    bool isDark() const;
    void tap();
    void setColor(QColor *color, const QColor &to);
    bool coversAll() const;
    void applyLook(const QRegion &painted);
    void applyArrow(const QRegion &painted);

    const ScalingInfo *const m_scaling;
    const QPointer<VexoFeedbackDelegator> m_tone_delegator;
    RowLayout *const m_layout;
    const QPointer<RowLabel> m_label;
    QPointer<QWidget> m_right_widget;
    QSpacerItem *m_right_spacer = nullptr;
    const std::unique_ptr<VisibleBuddies> m_visible_buddies;
    QPixmap m_arrow_normal;
    QPixmap m_arrow_pressed; // null until it is first shown
    QPixmap m_arrow_inactive; // null until it is first shown
    const std::unique_ptr<TapLimit> m_tap_limit;
    bool m_last_checked = false;
    bool m_inactive_shown = false;
    bool m_last_down = false;
    VexoFunctionButtonType m_button_type;
    QColor m_text_color = VexoColors::C3;
    QColor m_text_clicked_color = VexoColors::C0;
    QColor m_text_inactive_color = VexoColors::C6;
    QColor m_background_color = VexoColors::C1;
    QColor m_background_clicked_color = VexoColors::C4;
    double m_mm_indent = 3.0;
    double m_text_font_size_in_pt = 9.0;
};

} // namespace vexo::hox::qt::ui
