// SPDX-License-Identifier: MIT
#include "ui/buttons/vexofunctionbutton.h"

#include "ui/buttons/row/rowaccessible_p.h"
#include "ui/buttons/row/rowlabel_p.h"
#include "ui/buttons/row/rowlayout_p.h"
#include "ui/buttons/tone_p.h"
#include "ui/buttons/vexocheckbox.h"
#include "ui/buttons/vexoiconbutton.h"
#include "ui/buttons/vexoradiobutton.h"
#include "ui/files/imagefile_p.h"
#include "ui/foundation/cachedvectoricon.h"
#include "ui/foundation/coverrule_p.h"
#include "ui/foundation/panelfont_p.h"
#include "ui/foundation/plainlabel_p.h"
#include "ui/foundation/quietly_p.h"
#include "ui/foundation/shownpart_p.h"
#include "ui/foundation/visiblebuddies_p.h"
#include "ui/painting/iconpixmap_p.h"
#include "ui/touch/press_p.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>

namespace vexo::hox::qt::ui {

namespace {

const double height_mm = 9.8;
const double tick_box_mm = 6;

double rightSpacerMm(VexoFunctionButton::VexoFunctionButtonType type)
{
    const bool is_narrow
        = type == VexoFunctionButton::CheckboxType || type == VexoFunctionButton::RadiobuttonType;
    return is_narrow ? 2.0 : 3.0;
}

QString arrowFile(const char *color)
{
    return QStringLiteral(":widgetimages/VexoIconGeneralArrowListRight_44px_%1.svg")
        .arg(QLatin1String(color));
}

// Shows the arrow as it is: a plain label would dim it once more while disabled.
class ArrowLabel : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    // With a fixed size a change of the arrow does not lay out the screen anew.
    bool event(QEvent *event) override
    {
        const bool is_handled = QLabel::event(event);
        if (event->type() == QEvent::Polish
            || (event->type() == QEvent::StyleChange && testAttribute(Qt::WA_WState_Polished))) {
            setMinimumSize(0, 0);
            setIndent(indent()); // makes the label measure itself anew: a sheet may pad it
            setFixedSize(sizeHint());
        }
        return is_handled;
    }

    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        if (frameShape() != NoFrame) // else a sheet is asked for nothing
            drawFrame(&painter);
        const QPixmap arrow = pixmap(Qt::ReturnByValue);
        if (!arrow.isNull())
            drawIconPixmap(&painter, *style(), contentsRect(), int(alignment()), arrow);
    }
};

// For changes in a paint of \a painted: a child of the row of which no more is shown is painted
// right afterwards anyway.
template <typename Change>
void changeChild(QWidget *child, const QRegion &painted, Change change)
{
    const QRect shown = child->geometry() & shownPart(*child->parentWidget());
    const bool is_painted = painted.rectCount() == 1 && painted.boundingRect().contains(shown);
    if (shown.isEmpty() || is_painted)
        quietly(child, change);
    else
        change();
}

} // namespace

const QSizeF VexoFunctionButton::ICON_SIZE(0, 8);

VexoFunctionButton::VexoFunctionButton(QWidget *parent, const VexoFunctionButtonType &type)
    : QToolButton(parent)
    , VexoLogging("FB")
    , m_scaling(ScalingInfo::inst())
    , m_tone_delegator(VexoFeedbackDelegator::tone_delegator)
    , m_layout(new RowLayout)
    , m_label(new RowLabel(this))
    , m_visible_buddies(std::make_unique<VisibleBuddies>())
    , m_distance(std::make_unique<TapDistance>(10))
    , m_button_type(type)
{
    qRegisterMetaType<VexoFunctionButtonType>("VexoFunctionButtonType");
    static const CoverRule cover_rule(staticMetaObject,
        [](const QWidget &row) { return static_cast<const VexoFunctionButton &>(row).coversAll(); });
    makeRowsAccessible();
    setAttribute(Qt::WA_StyledBackground);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    setFixedHeight(widgetPx(pxY(*m_scaling, height_mm)));
    m_layout->setContentsMargins(0, 0, 0, 0);
    setLayout(m_layout);
    m_layout->addLabel(m_label);
    connectTone(this, &QAbstractButton::pressed, m_tone_delegator.data());
    skipWhatIsCovered();
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
    const RowLabel *const label = m_label;
    return label ? label->text() : QString();
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
    change(&m_text_color, color);
}

void VexoFunctionButton::setTextClickedColor(const QColor &color)
{
    change(&m_text_clicked_color, color);
}

void VexoFunctionButton::setTextInactiveColor(const QColor &color)
{
    change(&m_text_inactive_color, color);
}

void VexoFunctionButton::setBackgroundColor(const QColor &color)
{
    change(&m_background_color, color);
}

void VexoFunctionButton::setBackgroundClickedColor(const QColor &color)
{
    change(&m_background_clicked_color, color);
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
    RowLabel *const label = m_label;
    if (!label)
        return;
    QFont font = label->font();
    font.setWeight(weight);
    label->setFont(font);
}

void VexoFunctionButton::setMmRightSpacer(float mm)
{
    if (!(mm >= 0))
        return;
    if (m_right_spacer) {
        m_layout->removeItem(m_right_spacer);
        delete m_right_spacer;
    }
    const int px = widgetPx(pxX(*m_scaling, double(mm)));
    m_right_spacer = new QSpacerItem(px, px, QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_right_spacer->setAlignment(Qt::AlignRight);
    m_layout->addItem(m_right_spacer);
}

QLabel *VexoFunctionButton::getLabelInstance() const
{
    return m_label;
}

QAbstractButton *VexoFunctionButton::getButtonInstance() const
{
    if (auto *button = qobject_cast<QAbstractButton *>(m_right_widget))
        return button;
    return const_cast<VexoFunctionButton *>(this);
}

int VexoFunctionButton::getMouseMoveDelta() const
{
    return m_distance->px();
}

void VexoFunctionButton::setMouseMoveDelta(int px)
{
    if (px >= 3 && px <= 24)
        m_distance->setPx(px);
}

QWidget *VexoFunctionButton::addVisibleBuddy(QWidget *buddy)
{
    m_visible_buddies->add(buddy);
    if (buddy)
        buddy->setVisible(false);
    return buddy;
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
    Press::move(this, event->pos(), *m_distance);
}

void VexoFunctionButton::paintEvent(QPaintEvent *event)
{
    applyLook(event->region());
    const QColor color = ground();
    RowLabel *const label = m_label;
    if (label && event->rect().intersects(label->geometry()))
        label->prepare(color);
    QPainter painter(this);
    if (color.alpha() < 255) { // else nothing of it would be seen
        QStyleOption option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    }
    painter.fillRect(event->rect(), color);
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
        toggleRightButton();
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

// Of the right-hand widget, which assistive technology takes for a part of the row.
void VexoFunctionButton::tellChecked()
{
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
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
    m_right_widget = createRightWidget();
    setCheckable(is_choice); // false unchecks the row, and tells nobody
    setAutoExclusive(is_choice);
    m_last_checked = isChecked();
    setDown(m_last_checked);
    if (auto *button = qobject_cast<QAbstractButton *>(m_right_widget))
        connect(button, &QAbstractButton::toggled, this, &VexoFunctionButton::tellChecked);
    m_right_widget->setFocusPolicy(Qt::NoFocus); // the row itself takes the keys
    m_right_widget->setObjectName(QStringLiteral("vexoFunctionButtonWidgetRight"));
    m_layout->addWidget(m_right_widget, 0, Qt::AlignRight);
    setMmRightSpacer(float(rightSpacerMm(m_button_type)));
}

QWidget *VexoFunctionButton::createRightWidget()
{
    switch (m_button_type) {
    case CheckboxType:
        return new VexoCheckBox(this);
    case RadiobuttonType:
        return new VexoRadioButton(this);
    case TickAgreementType:
        return createTickBox();
    default:
        return createArrow();
    }
}

QWidget *VexoFunctionButton::createArrow()
{
    m_arrow_normal = CachedVectorIcon(arrowFile("C3"), ICON_SIZE).toPixmap();
    m_arrow_pressed = QPixmap();
    m_arrow_inactive = QPixmap();
    m_last_down = false;
    m_inactive_shown = false;
    auto *label = showPlain(new ArrowLabel(this));
    label->setPixmap(m_arrow_normal);
    return label;
}

QWidget *VexoFunctionButton::createTickBox()
{
    auto *box = new VexoIconButton(this);
    box->setCheckable(true);
    box->addIcon(QLatin1String(ActiveButton::DEFAULT_STATE_NAME),
        QStringLiteral(":widgetimages/Checkbox_Blank.svg"));
    box->addIcon(QLatin1String(ActiveButton::CLICKED_STATE_NAME),
        QStringLiteral(":widgetimages/RoundButton_S_Tick_Active.svg"));
    box->setMmIconSize(QSizeF(0, tick_box_mm));
    connect(box, &QAbstractButton::clicked, this, &VexoFunctionButton::tickAgreementClicked);
    return box;
}

bool VexoFunctionButton::hasArrow() const
{
    return m_button_type == ActionType || m_button_type == FullsizeRadiobuttonType;
}

// The toolkit lets a disabled button come up; a chosen row stays dark nevertheless.
bool VexoFunctionButton::isDark() const
{
    return hasArrow() && (isDown() || isChecked());
}

QColor VexoFunctionButton::ground() const
{
    return isDark() ? m_background_clicked_color : m_background_color;
}

void VexoFunctionButton::tap()
{
    const QPointer<VexoFunctionButton> self(this);
    switch (m_button_type) {
    case TickAgreementType:
        return;
    case FullsizeRadiobuttonType:
        setDown(true);
        setChecked(true);
        break;
    case ActionType:
        break;
    default:
        if (!m_right_widget)
            return;
        toggleRightButton();
    }
    if (self)
        Q_EMIT clicked(false);
}

void VexoFunctionButton::toggleRightButton()
{
    if (auto *box = qobject_cast<VexoCheckBox *>(m_right_widget))
        box->toggleButton();
    else if (auto *radio = qobject_cast<VexoRadioButton *>(m_right_widget))
        radio->toggleButton();
    else if (auto *tick_box = qobject_cast<VexoIconButton *>(m_right_widget))
        Q_EMIT tick_box->clicked(true); // which ticks it
}

void VexoFunctionButton::change(QColor *color, const QColor &to)
{
    *color = to;
    skipWhatIsCovered();
    update();
}

// Whatever its state is, nothing of what lies below the row is seen.
bool VexoFunctionButton::coversAll() const
{
    return m_background_color.alpha() == 255 && m_background_clicked_color.alpha() == 255;
}

// The ground that a stylesheet gives the row need not be painted then.
void VexoFunctionButton::skipWhatIsCovered()
{
    setAttribute(Qt::WA_NoSystemBackground, coversAll());
}

void VexoFunctionButton::applyLook(const QRegion &painted)
{
    if (hasArrow())
        applyArrowLook(painted);
    else
        applyTextColor(isEnabled() ? m_text_color : m_text_inactive_color, painted);
}

void VexoFunctionButton::applyArrowLook(const QRegion &painted)
{
    const bool was_dark = m_last_down;
    m_last_down = isDark();
    if (!isEnabled()) {
        if (m_inactive_shown)
            return;
        m_inactive_shown = true;
        applyTextColor(m_text_inactive_color, painted);
        showArrow(arrowAs(&m_arrow_inactive, "RGB220"), painted);
        return;
    }
    applyTextColor(m_last_down ? m_text_clicked_color : m_text_color, painted);
    if (m_last_down != was_dark || m_inactive_shown)
        showArrow(m_last_down ? arrowAs(&m_arrow_pressed, "C0") : m_arrow_normal, painted);
    m_inactive_shown = false;
}

// Of the size of the normal one. Most rows of a list are never pressed, and never disabled.
const QPixmap &VexoFunctionButton::arrowAs(QPixmap *arrow, const char *color) const
{
    if (arrow->isNull()) {
        ImageFile file(arrowFile(color), ImageFile::Kind::Vector);
        *arrow = file.pixmap(m_arrow_normal.size());
        arrow->setDevicePixelRatio(m_arrow_normal.devicePixelRatio());
    }
    return *arrow;
}

void VexoFunctionButton::applyTextColor(const QColor &color, const QRegion &painted)
{
    RowLabel *const label = m_label;
    if (label && label->ink() != color)
        changeChild(label, painted, [&] { label->setInk(color); });
}

void VexoFunctionButton::showArrow(const QPixmap &arrow, const QRegion &painted)
{
    if (auto *label = qobject_cast<QLabel *>(m_right_widget))
        changeChild(label, painted, [&] { label->setPixmap(arrow); });
}

} // namespace vexo::hox::qt::ui
