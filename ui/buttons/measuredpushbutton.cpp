// SPDX-License-Identifier: MIT
#include "ui/buttons/measuredpushbutton.h"

#include "ui/buttons/tone_p.h"
#include "ui/foundation/visiblebuddies_p.h"
#include "ui/touch/press_p.h"

#include <QMouseEvent>
#include <QPointer>

#include <limits>

namespace vexo::hox::qt::ui {

MeasuredPushButton::MeasuredPushButton(QWidget *parent)
    : QToolButton(parent)
    , VexoLogging("B")
    , m_visible_buddies(std::make_unique<VisibleBuddies>())
{
    connectTone(this, &QAbstractButton::pressed);
    m_long_press_timer.setSingleShot(true);
    m_long_press_timer.setTimerType(Qt::PreciseTimer);
    m_long_press_timer.setInterval(int(m_long_press_ms));
    connect(&m_long_press_timer, &QTimer::timeout, this, &MeasuredPushButton::longPressed);
    m_pulse_timer.setTimerType(Qt::PreciseTimer);
}

MeasuredPushButton::~MeasuredPushButton() = default;

void MeasuredPushButton::pulse(unsigned int interval_ms, const QObject *receiver, const char *slot)
{
    const unsigned int longest = std::numeric_limits<int>::max();
    m_pulse_timer.setInterval(int(qMin(interval_ms, longest)));
    m_pulse_timer.setSingleShot(false);
    if (receiver && slot)
        connect(&m_pulse_timer, SIGNAL(timeout()), receiver, slot);
}

void MeasuredPushButton::enablePulse(bool enable)
{
    m_pulse_enabled = enable;
    if (!enable)
        m_pulse_timer.stop();
}

void MeasuredPushButton::addVisibleBuddy(QWidget *buddy)
{
    m_visible_buddies->add(buddy);
}

void MeasuredPushButton::clearVisibleBuddies()
{
    m_visible_buddies->clear();
}

void MeasuredPushButton::setVisible(bool visible)
{
    m_visible_buddies->setVisible(this, visible, [=] { QToolButton::setVisible(visible); });
}

void MeasuredPushButton::mousePressEvent(QMouseEvent *event)
{
    if (!Press::begin(this, event))
        return;
    const QPointer<MeasuredPushButton> self(this);
    m_press_time.start(); // a slot of pressed() may run the event loop until the release
    QToolButton::mousePressEvent(event);
    if (self && Press::isOn(this))
        startMeasuring();
}

void MeasuredPushButton::mouseReleaseEvent(QMouseEvent *event)
{
    const Press::End end = Press::end(this, *event);
    if (end == Press::Late)
        return;
    const bool is_released = end == Press::Released;
    const auto elapsed = is_released ? static_cast<unsigned int>(m_press_time.elapsed()) : 0;
    // Stopped before the slots run: they may open a dialog, whose event loop would still report a
    // long press.
    if (end != Press::Unknown)
        stopMeasuring();
    const QPointer<MeasuredPushButton> self(this);
    // A tool button notes afterwards that its menu part is not pressed, also if a slot deleted it.
    if (isDown())
        QAbstractButton::mouseReleaseEvent(event);
    else
        QToolButton::mouseReleaseEvent(event);
    if (self && is_released)
        mouseReleaseEvent(elapsed);
    if (self && is_released)
        Q_EMIT keyPressHandling(elapsed, elapsed < m_long_press_ms, false);
    if (!self)
        event->accept(); // ignored beside the button; the toolkit would go on with the deleted one
}

void MeasuredPushButton::mouseReleaseEvent(unsigned int elapsed_ms)
{
    Q_EMIT pressedDelayed(elapsed_ms);
}

void MeasuredPushButton::longPressed()
{
    Q_EMIT keyPressHandling(static_cast<unsigned int>(m_press_time.elapsed()), false, true);
}

void MeasuredPushButton::startMeasuring()
{
    m_press_time.start();
    if (m_pulse_enabled && m_pulse_timer.interval() > 0)
        m_pulse_timer.start();
    m_long_press_timer.start();
}

void MeasuredPushButton::stopMeasuring()
{
    m_pulse_timer.stop();
    m_long_press_timer.stop();
}

} // namespace vexo::hox::qt::ui
