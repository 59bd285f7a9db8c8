// SPDX-License-Identifier: MIT
#include "ui/input/vexolineedit.h"

#include "ui/buttons/tone_p.h"
#include "ui/buttons/vexoiconbutton.h"
#include "ui/foundation/accessible_p.h"
#include "ui/foundation/languagefollower_p.h"
#include "ui/foundation/panelfont_p.h"
#include "ui/input/cursorblink_p.h"
#include "ui/input/fieldcontent_p.h"
#include "ui/input/fieldlook_p.h"
#include "ui/input/lineeditaccessible_p.h"
#include "ui/input/secrettext_p.h"
#include "ui/input/sidewidget_p.h"
#include "ui/painting/roundedframe_p.h"
#include "ui/touch/press_p.h"

#include <QLabel>
#include <QMouseEvent>
#include <QWidgetAction>

#include <utility>

namespace vexo::hox::qt::ui {

VexoLineEdit::VexoLineEdit(QWidget *parent)
    : QLineEdit(parent)
    , VexoLogging("gle")
    , m_scaling(ScalingInfo::inst())
    , m_tone_delegator(VexoFeedbackDelegator::tone_delegator)
    , m_cursor_timer(new CursorBlink(this))
    , m_frame(std::make_unique<RoundedFrame>())
    , m_content(std::make_unique<FieldContent>())
{
    installAccessible<VexoLineEdit, LineEditAccessible>();
    connect(m_cursor_timer, &QTimer::timeout, this, &VexoLineEdit::onCursorTimeout);
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (isSecret())
            forgetHistory(this);
    });
    setAttribute(Qt::WA_StyledBackground);
    setFocusPolicy(Qt::NoFocus);
    m_font.setWeight(m_font_weight);
    setBackgroundColor(m_background_color);
    setBorderColor(m_border_color);
    setPtFontSize(m_pt_font_size);
    applyMeasures();
    setCursorMsBlinkInterval(600);
}

VexoLineEdit::~VexoLineEdit()
{
    delete m_trailing_button;
    delete m_leading_label;
}

void VexoLineEdit::setPlaceholderText(const QString &text)
{
    QLineEdit::setPlaceholderText(text); // never drawn, but the same to whoever asks
    m_placeholder_text = text;
    m_content->text().setPlaceholder(text, false);
    m_underscores = 0;
    update();
}

void VexoLineEdit::setUnderscores(int count)
{
    if (count < 0)
        return;
    const int most = 32767; // as many characters as a line edit takes
    setPlaceholderText(QString(qMin(count, most), QLatin1Char('_')));
    m_underscores = m_placeholder_text.size();
    m_content->text().setPlaceholder(m_placeholder_text, true);
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

void VexoLineEdit::setCursorColor(const QColor &color)
{
    m_cursor_pen.setColor(color);
    update();
}

int VexoLineEdit::cursorMsBlinkInterval() const
{
    return m_cursor_timer->interval();
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
    if (!m_leading_label)
        m_leading_label = makeLeadingLabel(this);
    showIcon(m_leading_label, icon, pxSize(*m_scaling, m_mm_leading_icon_size));
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
    setLeadingIcon(m_leading_icon);
    update();
}

void VexoLineEdit::setMmTrailingIconSize(const QSizeF &mm)
{
    trailingButton()->setMmIconSize(mm); // refuses sizes with an exception
    m_mm_trailing_icon_size = mm;
}

void VexoLineEdit::setMmMargin(const QSizeF &mm)
{
    m_mm_margin = mm;
    applyMeasures();
}

void VexoLineEdit::setPtFontSize(double pt)
{
    if (!isMeasure(pt))
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

void VexoLineEdit::setCursorState(bool on)
{
    m_cursor_visible = on;
    m_cursor_timer->setBlinking(on);
}

void VexoLineEdit::enableLeadingLabelAction()
{
    if (!m_leading_label)
        setLeadingIcon(m_leading_icon);
    m_leading_action
        = addSideWidget(this, m_leading_label, LeadingPosition, QStringLiteral("leadingAction"));
}

void VexoLineEdit::enableTrailingButtonAction()
{
    m_trailing_action
        = addSideWidget(this, trailingButton(), TrailingPosition, QStringLiteral("trailingAction"));
    m_trailing_button->setCanChangeBackgroundColor(false);
    connect(m_trailing_button, &VexoIconButton::clicked, this, &VexoLineEdit::deleteButtonClick);
}

void VexoLineEdit::shake(
    unsigned int duration_ms, unsigned int oscillations, unsigned int amplitude_px, bool show_text)
{
    connect(&m_content->shake(), &QTimer::timeout, this, &VexoLineEdit::onShakeAnimationStep,
        Qt::UniqueConnection);
    m_content->shake().shake(duration_ms, oscillations, amplitude_px, show_text, rect());
}

void VexoLineEdit::mousePressEvent(QMouseEvent *event)
{
    if (!event || !Press::begin(this, event))
        return;
    const QPointer<VexoLineEdit> self(this);
    QLineEdit::mousePressEvent(event);
    if (self)
        ringSoon(m_tone_delegator);
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
    const QPointer<VexoLineEdit> self(this);
    QLineEdit::mouseDoubleClickEvent(event);
    if (self)
        ringSoon(m_tone_delegator);
}

// The toolkit calls this one by its name, so it has to be hidden as well.
QVariant VexoLineEdit::inputMethodQuery(Qt::InputMethodQuery query, QVariant argument) const
{
    const QVariant answer = QLineEdit::inputMethodQuery(query, std::move(argument));
    return isSecret() ? masked(*this, query, answer) : answer;
}

void VexoLineEdit::inputMethodEvent(QInputMethodEvent *event)
{
    const QPointer<VexoLineEdit> self(this);
    QLineEdit::inputMethodEvent(event);
    if (!self || isReadOnly())
        return;
    m_content->text().compose(*event, cursorPosition());
    update();
}

void VexoLineEdit::onCursorTimeout()
{
    m_cursor_visible = !m_cursor_visible;
    update(m_content->blinkArea(fieldLook()));
}

void VexoLineEdit::onShakeAnimationStep()
{
    update(m_content->step(fieldLook()));
}

void VexoLineEdit::takeMeasure(double *member, double mm)
{
    if (!isMeasure(mm))
        return;
    *member = mm;
    applyMeasures();
}

void VexoLineEdit::applyMeasures()
{
    const auto px = [this](double mm_x, double mm_y) {
        const QSizeF size = finitePxSize(*m_scaling, QSizeF(mm_x, mm_y));
        return QPointF(size.width(), size.height());
    };
    m_px_margin = px(m_mm_margin.width(), m_mm_margin.height());
    m_px_pen_line = px(m_mm_pen_line, m_mm_pen_line);
    m_frame->setRadius(px(m_mm_radius, m_mm_radius));
    m_frame->setMargin(m_px_pen_line / 2);
    m_frame->setLineWidth(m_px_pen_line.y());
    const int inner_px = pxY(*m_scaling, 2 * (m_mm_radius + m_mm_margin.height()));
    setFixedHeight(widgetPx(truncated(inner_px + m_px_pen_line.y())));
    calculateCursorPosition();
    update();
}

void VexoLineEdit::calculateCursorPosition()
{
    const int length = widgetPx(pxY(*m_scaling, m_cursor_mm_height));
    m_cursor_top = (height() - length) / 2;
    m_cursor_bottom = m_cursor_top + length;
}

VexoIconButton *VexoLineEdit::trailingButton()
{
    if (!m_trailing_button) {
        m_trailing_button = makeTrailingButton(this, m_tone_delegator);
        followLanguage(m_trailing_button, "accessibleName", [] { return tr("Delete"); });
        m_trailing_button->setIcon(m_trailing_icon);
        m_trailing_button->setMmIconSize(m_mm_trailing_icon_size);
    }
    return m_trailing_button;
}

FieldLook VexoLineEdit::fieldLook() const
{
    const double dots_mm = m_mm_radius + m_left_offset_mm + 0.75;
    FieldLook look;
    look.text = text();
    look.font = font();
    look.is_secret = isSecret();
    look.tells_length = echoMode() != NoEcho;
    look.size = size();
    look.margin = m_px_margin;
    look.corner = finitePx(m_scaling->mm2px_X(float(m_mm_radius)));
    look.dots_left = finitePx(m_scaling->mm2px_X(float(dots_mm))) + m_px_margin.x();
    look.indent = pxX(*m_scaling, m_cursor_mm_indent);
    look.offset = pxX(*m_scaling, m_left_offset_mm);
    if (m_leading_action && m_leading_label)
        look.icon_end = m_leading_label->x() + pxX(*m_scaling, m_mm_leading_icon_size.width());
    look.is_centered = m_draw_centered;
    look.has_centered_dots = m_draw_secured_centered;
    look.ink = isEnabled() ? m_text_color : m_text_inactive_color;
    look.placeholder = m_placeholder_color;
    look.outline = m_frame->pen();
    look.cursor = m_cursor_pen;
    look.has_cursor = m_cursor_visible;
    look.cursor_top = m_cursor_top;
    look.cursor_bottom = m_cursor_bottom;
    return look;
}

void VexoLineEdit::paintEvent(QPaintEvent *event)
{
    if (!m_painter.begin(this))
        return;
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_frame->draw(&m_painter, size(), event->rect());
    m_content->draw(&m_painter, fieldLook());
    m_painter.end();
}

} // namespace vexo::hox::qt::ui
