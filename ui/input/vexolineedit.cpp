// SPDX-License-Identifier: MIT
#include "ui/input/vexolineedit.h"

#include "ui/buttons/vexofeedbackdelegator.h"
#include "ui/buttons/vexoiconbutton.h"
#include "ui/files/imagefile_p.h"
#include "ui/foundation/panelfont_p.h"
#include "ui/foundation/plainlabel_p.h"
#include "ui/input/composedtext_p.h"
#include "ui/input/lineeditaccessible_p.h"
#include "ui/input/secrettext_p.h"
#include "ui/input/shakemotion_p.h"
#include "ui/input/sidewidget_p.h"
#include "ui/painting/iconpixmap_p.h"
#include "ui/painting/roundedframe_p.h"
#include "ui/painting/secretdots_p.h"
#include "ui/painting/textrun_p.h"
#include "ui/touch/press_p.h"

#include <QLabel>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QWidgetAction>

namespace vexo::hox::qt::ui {

namespace {

const int most_underscores = 32767; // as many characters as a line edit takes

QPointF finitePxXY(const ScalingInfo &scaling, double mm_x, double mm_y)
{
    return QPointF(finitePx(scaling.mm2px_X(float(mm_x))), finitePx(scaling.mm2px_Y(float(mm_y))));
}

} // namespace

VexoLineEdit::VexoLineEdit(QWidget *parent)
    : QLineEdit(parent)
    , VexoLogging("gle")
    , m_scaling(ScalingInfo::inst())
    , m_tone_delegator(VexoFeedbackDelegator::tone_delegator)
    , m_cursor_timer(new QTimer(this))
    , m_frame(std::make_unique<RoundedFrame>())
    , m_composed(std::make_unique<ComposedText>())
    , m_text_run(std::make_unique<TextRun>())
    , m_placeholder_run(std::make_unique<TextRun>())
{
    makeLineEditsAccessible();
    setupUi();
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (isSecret())
            forgetHistory(this);
    });
}

VexoLineEdit::~VexoLineEdit()
{
    delete m_trailing_button;
    delete m_leading_label;
}

void VexoLineEdit::setupUi()
{
    connect(m_cursor_timer, &QTimer::timeout, this, &VexoLineEdit::onCursorTimeout);
    setAttribute(Qt::WA_StyledBackground);
    setFocusPolicy(Qt::NoFocus);
    m_font.setWeight(m_font_weight);
    reapplyProperties();
}

void VexoLineEdit::reapplyProperties()
{
    setBackgroundColor(m_background_color);
    setBorderColor(m_border_color);
    setMmMargin(m_mm_margin);
    setPtFontSize(m_pt_font_size);
    setMmRadius(m_mm_radius);
    setMmPenLine(m_mm_pen_line);
    setDrawCentered(m_draw_centered);
    setCursorMmHeight(m_cursor_mm_height);
    setCursorPxPenWidth(1);
    setCursorMsBlinkInterval(600);
    setCursorColor(DEFAULT_CURSOR_COLOR);
}

void VexoLineEdit::setPlaceholderText(const QString &text)
{
    QLineEdit::setPlaceholderText(text); // never drawn, but the same to whoever asks
    m_placeholder_text = text;
    m_placeholder_typed = -1;
    m_underscores = 0;
    update();
}

void VexoLineEdit::setUnderscores(int count)
{
    if (count < 0)
        return;
    count = qMin(count, most_underscores);
    setPlaceholderText(QString(count, QLatin1Char('_')));
    m_underscores = count;
    update();
}

void VexoLineEdit::setPlaceholderColor(const QColor &color)
{
    m_placeholder_color = color;
    update();
}

void VexoLineEdit::setBackgroundColor(const QColor &color)
{
    m_background_color = color;
    m_frame->setGround(color);
    update();
}

void VexoLineEdit::setBorderColor(const QColor &color)
{
    m_border_color = color;
    m_frame->setLineColor(color);
    update();
}

void VexoLineEdit::setTextColor(const QColor &color)
{
    m_text_color = color;
    update();
}

void VexoLineEdit::setTextInactiveColor(const QColor &color)
{
    m_text_inactive_color = color;
    update();
}

void VexoLineEdit::setCursorColor(const QColor &color)
{
    m_cursor_pen.setColor(color);
    update();
}

void VexoLineEdit::setCursorMmIndent(double mm)
{
    m_cursor_mm_indent = mm;
    update();
}

void VexoLineEdit::setMmLeftOffset(double mm)
{
    m_left_offset_mm = mm;
}

void VexoLineEdit::setCursorMsBlinkInterval(int ms)
{
    if (ms > 0)
        m_cursor_timer->setInterval(ms);
}

void VexoLineEdit::setCursorPxPenWidth(int px)
{
    if (px <= 0)
        return;
    m_cursor_pen.setWidth(qMin(px, MAX_PX));
    update();
}

void VexoLineEdit::setCursorMmHeight(double mm)
{
    if (!(mm > 0)) // NaN too
        return;
    m_cursor_mm_height = mm;
    calculateCursorPosition();
    update();
}

void VexoLineEdit::setFontWeight(int weight)
{
    m_font_weight = weight;
    m_font.setWeight(qBound(0, weight, 99));
    setFont(m_font);
}

void VexoLineEdit::setLeadingIcon(const QIcon &icon)
{
    m_leading_icon = icon;
    const QSize px = pxSize(*m_scaling, m_mm_leading_icon_size).expandedTo(QSize(0, 0));
    const bool is_sane = qint64(px.width()) * px.height() <= ImageFile::MAX_PIXELS;
    leadingLabel()->setPixmap(is_sane ? iconPixmap(icon, px, sharpestRatio()) : QPixmap());
}

void VexoLineEdit::setTrailingIcon(const QIcon &icon)
{
    m_trailing_icon = icon;
    trailingButton()->setIcon(icon);
    setMmTrailingIconSize(m_mm_trailing_icon_size);
}

void VexoLineEdit::setMmLeadingIconSize(const QSizeF &mm)
{
    m_mm_leading_icon_size = mm;
    leadingLabel()->setFixedWidth(widgetPx(pxX(*m_scaling, mm.width())));
    setLeadingIcon(m_leading_icon);
    update();
}

void VexoLineEdit::setMmTrailingIconSize(const QSizeF &mm)
{
    trailingButton()->setMmIconSize(mm); // refuses sizes with an exception
    m_mm_trailing_icon_size = mm;
    placeSideWidgets();
}

void VexoLineEdit::setMmMargin(const QSizeF &mm)
{
    m_mm_margin = mm;
    m_px_margin = finitePxXY(*m_scaling, mm.width(), mm.height());
    setHeight();
}

void VexoLineEdit::setMmRadius(double mm)
{
    if (!(mm >= 0)) // NaN too
        return;
    m_mm_radius = mm;
    m_frame->setRadius(finitePxXY(*m_scaling, mm, mm));
    setHeight();
}

void VexoLineEdit::setMmPenLine(double mm)
{
    if (!(mm >= 0)) // NaN too
        return;
    m_mm_pen_line = mm;
    m_px_pen_line = finitePxXY(*m_scaling, mm, mm);
    m_frame->setMargin(m_px_pen_line / 2);
    m_frame->setLineWidth(m_px_pen_line.y());
    setHeight();
}

void VexoLineEdit::setPtFontSize(double pt)
{
    if (!(pt >= 0)) // NaN too
        return;
    m_pt_font_size = pt;
    setPtSize(m_font, pt);
    setFont(m_font);
}

void VexoLineEdit::setDrawPasswordSecured(bool secured)
{
    if (isSecret())
        forgetHistory(this);
    m_draw_password_secured = secured;
    setEchoMode(secured ? Password : Normal);
    update();
}

void VexoLineEdit::setDrawCentered(bool centered)
{
    m_draw_centered = centered;
    update();
}

void VexoLineEdit::setDrawSecuredCentered(bool centered)
{
    m_draw_secured_centered = centered;
}

void VexoLineEdit::setCursorState(bool on)
{
    m_has_cursor = on;
    m_cursor_visible = on;
    if (on)
        m_cursor_timer->start();
    else
        m_cursor_timer->stop();
}

void VexoLineEdit::enableLeadingLabelAction()
{
    m_leading_action = new QWidgetAction(this);
    m_leading_action->setObjectName(QStringLiteral("leadingAction"));
    m_leading_action->setDefaultWidget(leadingLabel());
    addAction(m_leading_action, LeadingPosition);
}

void VexoLineEdit::enableTrailingButtonAction()
{
    m_trailing_action = new QWidgetAction(this);
    m_trailing_action->setObjectName(QStringLiteral("trailingAction"));
    m_trailing_action->setDefaultWidget(trailingButton());
    addAction(m_trailing_action, TrailingPosition);
    m_trailing_button->setCanChangeBackgroundColor(false);
    connect(m_trailing_button, &VexoIconButton::clicked, this, &VexoLineEdit::deleteButtonClick);
}

void VexoLineEdit::shake(
    unsigned int duration_ms, unsigned int oscillations, unsigned int amplitude_px, bool show_text)
{
    if (!m_shake) {
        m_shake = std::make_unique<ShakeMotion>();
        m_shake_timer = std::make_unique<QTimer>();
        m_shake_timer->setSingleShot(true);
        m_shake_timer->setTimerType(Qt::PreciseTimer);
        connect(m_shake_timer.get(), &QTimer::timeout, this, &VexoLineEdit::onShakeAnimationStep);
    }
    m_shake->start(duration_ms, oscillations, amplitude_px);
    m_shake_timer->start(m_shake->delay());
    m_shake_shows_text = show_text;
    m_shake_is_alone = false;
}

void VexoLineEdit::mousePressEvent(QMouseEvent *event)
{
    if (!event || !Press::begin(this, event))
        return;
    const QPointer<VexoLineEdit> self(this);
    QLineEdit::mousePressEvent(event);
    if (self)
        ring();
}

void VexoLineEdit::mouseReleaseEvent(QMouseEvent *event)
{
    if (!event)
        return;
    const Press::End end = Press::end(this, *event);
    const QPointer<VexoLineEdit> self(this);
    QLineEdit::mouseReleaseEvent(event);
    const bool is_lost = end == Press::TakenBack || end == Press::Late;
    if (self && event->button() == Qt::LeftButton && !is_lost)
        Q_EMIT textEditWanted(text());
}

// The press of a second quick tap comes as this, and as nothing else.
void VexoLineEdit::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (!event || !Press::begin(this, event))
        return;
    QLineEdit::mouseDoubleClickEvent(event);
    ring();
}

// The toolkit places the side widgets anew with each action, size and direction.
bool VexoLineEdit::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
        placeSideWidgets();
    return QLineEdit::eventFilter(watched, event);
}

QVariant VexoLineEdit::inputMethodQuery(Qt::InputMethodQuery query) const
{
    return inputMethodQuery(query, QVariant());
}

// The toolkit calls this one by its name, so it has to be hidden as well.
QVariant VexoLineEdit::inputMethodQuery(Qt::InputMethodQuery query, QVariant argument) const
{
    const QVariant answer = QLineEdit::inputMethodQuery(query, argument);
    return isSecret() ? masked(*this, query, answer) : answer;
}

void VexoLineEdit::inputMethodEvent(QInputMethodEvent *event)
{
    const QPointer<VexoLineEdit> self(this);
    QLineEdit::inputMethodEvent(event);
    if (!self || isReadOnly())
        return;
    m_composed->take(*event, cursorPosition());
    update();
}

void VexoLineEdit::showEvent(QShowEvent *event)
{
    QLineEdit::showEvent(event);
    if (m_has_cursor && !m_cursor_timer->isActive())
        m_cursor_timer->start();
}

// A cursor that nobody sees need not wake the processor.
void VexoLineEdit::hideEvent(QHideEvent *event)
{
    QLineEdit::hideEvent(event);
    m_cursor_timer->stop();
}

void VexoLineEdit::onCursorTimeout()
{
    if (!isVisible())
        m_cursor_timer->stop(); // until it is shown
    m_cursor_visible = !m_cursor_visible;
    if (showsDots())
        return; // without a cursor
    const int x = cursorX(textRect(m_text_run->advance(), m_placeholder_run->advance(), 0));
    if (m_draw_centered || x != m_cursor_x)
        update(); // centred text moves with the cursor
    else if (!isShaking())
        update(cursorArea());
}

void VexoLineEdit::onShakeAnimationStep()
{
    if (!m_shake || !m_shake->step()) {
        m_shake_dot_count = 0;
        m_shake_text.clear();
        m_shake_shows_text = false;
        update();
        return;
    }
    m_shake_timer->start(m_shake->delay());
    if (m_shake_is_alone)
        update(m_shake_area | shakeArea());
    else
        update(); // the first step also takes cursor and placeholder away
    m_shake_is_alone = true;
}

void VexoLineEdit::ring()
{
    if (m_tone_delegator)
        QMetaObject::invokeMethod(m_tone_delegator, "tone", Qt::QueuedConnection);
}

// Echo modes hide the text, too.
bool VexoLineEdit::isSecret() const
{
    return m_draw_password_secured || echoMode() != Normal;
}

void VexoLineEdit::setHeight()
{
    const double mm = 2 * (m_mm_radius + m_mm_margin.height());
    setFixedHeight(widgetPx(truncated(pxY(*m_scaling, mm) + m_px_pen_line.y())));
    calculateCursorPosition();
    update();
}

void VexoLineEdit::calculateCursorPosition()
{
    const int length = widgetPx(pxY(*m_scaling, m_cursor_mm_height));
    m_cursor_top = (height() - length) / 2;
    m_cursor_bottom = m_cursor_top + length;
}

QLabel *VexoLineEdit::leadingLabel()
{
    if (m_leading_label)
        return m_leading_label;
    m_leading_label = showPlain(new SideWidget<IconLabel>(this));
    m_leading_label->installEventFilter(this);
    m_leading_label->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    m_leading_label->setFixedWidth(widgetPx(pxX(*m_scaling, m_mm_leading_icon_size.width())));
    setLeadingIcon(m_leading_icon);
    return m_leading_label;
}

VexoIconButton *VexoLineEdit::trailingButton()
{
    if (m_trailing_button)
        return m_trailing_button;
    // It rings what the field rings, whatever was installed since.
    const QScopedValueRollback<VexoFeedbackDelegator *> tone(
        VexoFeedbackDelegator::tone_delegator, m_tone_delegator);
    m_trailing_button = new SideWidget<VexoIconButton>(this);
    m_trailing_button->installEventFilter(this);
    m_trailing_button->setObjectName(QStringLiteral("trailingButton"));
    m_trailing_button->setAttribute(Qt::WA_NoMousePropagation); // a release beside it is not ours
    m_trailing_button->setAccessibleName(tr("Delete"));
    m_trailing_button->setCanChangeBackgroundColor(false);
    m_trailing_button->setIcon(m_trailing_icon);
    m_trailing_button->setMmIconSize(m_mm_trailing_icon_size);
    return m_trailing_button;
}

// The toolkit puts them at the ends, but as large as its own small icons, which would cut ours.
void VexoLineEdit::placeSideWidgets()
{
    QLabel *const label = m_leading_label;
    if (m_leading_action && label)
        label->setGeometry(label->x(), 0, label->width(), height());
    VexoIconButton *const button = m_trailing_button;
    if (!m_trailing_action || !button)
        return;
    QRect place(button->x(), 0, button->width(), height());
    const int missing = qMax(0, button->pxIconSize().width() - place.width());
    if (layoutDirection() == Qt::RightToLeft)
        place.setRight(place.right() + missing);
    else
        place.setLeft(place.left() - missing);
    button->setGeometry(place);
}

} // namespace vexo::hox::qt::ui
