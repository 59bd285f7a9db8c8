// SPDX-License-Identifier: MIT
#include "ui/buttons/vexofunctionbutton.h"

#include "ui/buttons/row/arrowlabel_p.h"
#include "ui/buttons/row/rightwidget_p.h"
#include "ui/buttons/row/rowaccessible_p.h"
#include "ui/buttons/row/rowlabel_p.h"
#include "ui/buttons/row/rowlayout_p.h"
#include "ui/buttons/tone_p.h"
#include "ui/foundation/accessible_p.h"
#include "ui/foundation/coverrule_p.h"
#include "ui/foundation/panelfont_p.h"
#include "ui/foundation/visiblebuddies_p.h"
#include "ui/touch/press_p.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>

namespace vexo::hox::qt::ui {

const QSizeF VexoFunctionButton::ICON_SIZE(0, 8);

VexoFunctionButton::VexoFunctionButton(QWidget *parent, const VexoFunctionButtonType &type)
    : QToolButton(parent)
    , VexoLogging("FB")
    , m_scaling(ScalingInfo::inst())
    , m_tone_delegator(VexoFeedbackDelegator::tone_delegator)
    , m_layout(new RowLayout)
    , m_label(new RowLabel(this))
    , m_visible_buddies(std::make_unique<VisibleBuddies>())
    , m_tap_limit(std::make_unique<TapLimit>(10))
    , m_button_type(type)
{
    qRegisterMetaType<VexoFunctionButtonType>("VexoFunctionButtonType");
    static const CoverRule cover_rule(staticMetaObject, [](const QWidget &row) {
        return static_cast<const VexoFunctionButton &>(row).coversAll();
    });
    installAccessible<VexoFunctionButton, RowAccessible>();
    setAttribute(Qt::WA_StyledBackground);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    fixHeight(this, *m_scaling, 9.8);
    m_layout->setContentsMargins(0, 0, 0, 0);
    setLayout(m_layout);
    m_layout->addLabel(m_label);
    connectTone(this, &QAbstractButton::pressed, m_tone_delegator.data());
    setBackgroundColor(m_background_color);
    setupLabel();
    setupRightWidget();
}

VexoFunctionButton::~VexoFunctionButton() = default;

void VexoFunctionButton::setButtonType(VexoFunctionButtonType type)
{
    m_button_type = type;
    if (m_right_widget) {
        m_layout->removeWidget(m_right_widget);
        delete m_right_widget;
    }
    setupRightWidget();
    update();
}

QString VexoFunctionButton::text() const
{
    return m_label ? m_label->text() : QString();
}

void VexoFunctionButton::setText(const QString &text)
{
    if (RowLabel *label = m_label)
        label->setText(text);
    QAccessibleEvent event(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
    update();
}

void VexoFunctionButton::setTextColor(const QColor &color)
{
    setColor(&m_text_color, color);
}

void VexoFunctionButton::setTextClickedColor(const QColor &color)
{
    setColor(&m_text_clicked_color, color);
}

void VexoFunctionButton::setTextInactiveColor(const QColor &color)
{
    setColor(&m_text_inactive_color, color);
}

void VexoFunctionButton::setBackgroundColor(const QColor &color)
{
    setColor(&m_background_color, color);
}

void VexoFunctionButton::setBackgroundClickedColor(const QColor &color)
{
    setColor(&m_background_clicked_color, color);
}

void VexoFunctionButton::setMmIndent(double mm)
{
    m_mm_indent = mm;
    if (RowLabel *label = m_label)
        label->setIndent(pxX(*m_scaling, mm));
    update();
}

void VexoFunctionButton::setTextFontsizeInPt(double pt, int weight)
{
    m_text_font_size_in_pt = pt;
    if (RowLabel *label = m_label)
        label->setFont(panelFont(pt, weight));
}

void VexoFunctionButton::setFontWeight(int weight)
{
    if (RowLabel *label = m_label)
        label->setFontWeight(weight);
}

void VexoFunctionButton::setMmRightSpacer(float mm)
{
    if (!isMeasure(mm))
        return;
    m_right_spacer = m_layout->replaceGap(m_right_spacer, widgetPx(pxX(*m_scaling, double(mm))));
}

QLabel *VexoFunctionButton::getLabelInstance() const
{
    return m_label;
}

QAbstractButton *VexoFunctionButton::getButtonInstance() const
{
    auto *button = qobject_cast<QAbstractButton *>(m_right_widget);
    return button ? button : const_cast<VexoFunctionButton *>(this);
}

int VexoFunctionButton::getMouseMoveDelta() const
{
    return m_tap_limit->px();
}

void VexoFunctionButton::setMouseMoveDelta(int px)
{
    if (px >= 3 && px <= 24)
        m_tap_limit->setPx(px);
}

QWidget *VexoFunctionButton::addVisibleBuddy(QWidget *buddy)
{
    return m_visible_buddies->addHidden(buddy);
}

void VexoFunctionButton::clearVisibleBuddies()
{
    m_visible_buddies->clear();
}

void VexoFunctionButton::setVisible(bool visible)
{
    m_visible_buddies->setVisible(this, visible, [=] { QToolButton::setVisible(visible); });
}

void VexoFunctionButton::mousePressEvent(QMouseEvent *event)
{
    if (!Press::begin(this, event, event->pos()))
        return;
    if (m_button_type == ActionType)
        setDown(true);
    Q_EMIT pressed();
}

void VexoFunctionButton::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<VexoFunctionButton> self(this);
    const Press::End end = Press::end(this, *event);
    if (end == Press::Released)
        tap();
    if (self && end != Press::Unknown)
        setDown(isChecked());
}

void VexoFunctionButton::mouseMoveEvent(QMouseEvent *event)
{
    Press::move(this, event->pos(), *m_tap_limit);
}

void VexoFunctionButton::paintEvent(QPaintEvent *event)
{
    applyLook(event->region());
    const QColor ground = isDark() ? m_background_clicked_color : m_background_color;
    RowLabel *const label = m_label;
    if (label && event->rect().intersects(label->geometry()))
        label->prepare(ground);
    QPainter painter(this);
    if (ground.alpha() < 255) { // else nothing of it would be seen
        QStyleOption option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    }
    painter.fillRect(event->rect(), ground);
}

void VexoFunctionButton::checkStateSet()
{
    if (isChecked() == m_last_checked)
        return;
    m_last_checked = isChecked();
    setDown(m_last_checked);
    Q_EMIT stateChanged(m_last_checked);
}

// Of click(), the space key and assistive technology, which do not come as a touch.
void VexoFunctionButton::nextCheckState()
{
    const QPointer<VexoFunctionButton> self(this);
    QToolButton::nextCheckState();
    if (self)
        checkStateSet(); // the toolkit leaves it out on this way
    if (self)
        RightWidget::toggle(m_right_widget);
}

// The toolkit takes a chosen row, which is down, for one that is held, and would report that it has
// been released.
void VexoFunctionButton::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange)
        setDown(isEnabled() && isChecked());
    QToolButton::changeEvent(event);
}

void VexoFunctionButton::focusOutEvent(QFocusEvent *event)
{
    if (isChecked())
        QWidget::focusOutEvent(event); // NOLINT(bugprone-parent-virtual-call)
    else
        QToolButton::focusOutEvent(event);
}

void VexoFunctionButton::tickAgreementClicked()
{
    getButtonInstance()->setChecked(true);
}

void VexoFunctionButton::setupLabel()
{
    m_label->setObjectName(QStringLiteral("vexoFunctionButtonLabel"));
    m_label->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
    m_label->setWordWrap(true);
    setTextFontsizeInPt(m_text_font_size_in_pt, QFont::Medium);
    setMmIndent(m_mm_indent);
}

void VexoFunctionButton::setupRightWidget()
{
    const bool is_choice = m_button_type == FullsizeRadiobuttonType;
    m_right_widget = RightWidget::make(m_button_type, this);
    setCheckable(is_choice); // false unchecks the row, and tells nobody
    setAutoExclusive(is_choice);
    m_last_checked = isChecked();
    setDown(m_last_checked);
    setupArrow();
    const auto *button = qobject_cast<QAbstractButton *>(m_right_widget);
    if (button)
        connect(
            button, &QAbstractButton::toggled, this, [this] { RowAccessible::tellChecked(this); });
    if (button && m_button_type == TickAgreementType)
        connect(button, &QAbstractButton::clicked, this, &VexoFunctionButton::tickAgreementClicked);
    m_layout->addWidget(m_right_widget, 0, Qt::AlignRight);
    setMmRightSpacer(float(RightWidget::gapMm(m_button_type)));
}

void VexoFunctionButton::setupArrow()
{
    const auto *arrow = qobject_cast<QLabel *>(m_right_widget);
    m_arrow_normal = arrow ? arrow->pixmap(Qt::ReturnByValue) : QPixmap();
    m_arrow_pressed = QPixmap();
    m_arrow_inactive = QPixmap();
    m_last_down = false;
    m_inactive_shown = false;
}

// The toolkit lets a disabled button come up; a chosen row stays dark nevertheless.
bool VexoFunctionButton::isDark() const
{
    return RightWidget::isArrow(m_button_type) && (isDown() || isChecked());
}

void VexoFunctionButton::tap()
{
    const QPointer<VexoFunctionButton> self(this);
    const bool is_lost = !m_right_widget && !RightWidget::isArrow(m_button_type);
    if (m_button_type == TickAgreementType || is_lost)
        return;
    if (m_button_type == FullsizeRadiobuttonType) {
        setDown(true);
        setChecked(true);
    } else {
        RightWidget::toggle(m_right_widget);
    }
    if (self)
        Q_EMIT clicked(false);
}

void VexoFunctionButton::setColor(QColor *color, const QColor &to)
{
    *color = to;
    setAttribute(Qt::WA_NoSystemBackground, coversAll()); // what a stylesheet says of it is covered
    update();
}

// Whatever its state is, nothing of what lies below the row is seen.
bool VexoFunctionButton::coversAll() const
{
    return m_background_color.alpha() == 255 && m_background_clicked_color.alpha() == 255;
}

// On a row with an arrow a text that is disabled already keeps its colour.
void VexoFunctionButton::applyLook(const QRegion &painted)
{
    const bool has_arrow = RightWidget::isArrow(m_button_type);
    const QColor enabled_ink = isDark() ? m_text_clicked_color : m_text_color;
    RowLabel *const label = m_label;
    if (label && (isEnabled() || !has_arrow || !m_inactive_shown))
        label->setInk(isEnabled() ? enabled_ink : m_text_inactive_color, painted);
    if (has_arrow)
        applyArrow(painted);
}

void VexoFunctionButton::applyArrow(const QRegion &painted)
{
    const bool was_dark = m_last_down;
    const bool was_inactive = m_inactive_shown;
    m_last_down = isDark();
    m_inactive_shown = !isEnabled();
    const bool is_same
        = was_inactive == m_inactive_shown && (m_inactive_shown || was_dark == m_last_down);
    auto *arrow = is_same ? nullptr : dynamic_cast<ArrowLabel *>(m_right_widget.data());
    if (!arrow)
        return;
    if (m_inactive_shown)
        arrow->showArrow(
            ArrowLabel::rendered(&m_arrow_inactive, "RGB220", m_arrow_normal), painted);
    else if (m_last_down)
        arrow->showArrow(ArrowLabel::rendered(&m_arrow_pressed, "C0", m_arrow_normal), painted);
    else
        arrow->showArrow(m_arrow_normal, painted);
}

} // namespace vexo::hox::qt::ui
