// SPDX-License-Identifier: MIT
#include "panel/paneldimmer.h"

#include "panel/coverfollower_p.h"

#include <BounceFilter>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>

#include <limits>

namespace vexo::hox::qt::panel {

namespace {

qint64 msOf(int seconds)
{
    return qint64(seconds) * 1000;
}

bool isBegin(QEvent::Type type)
{
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick
        || type == QEvent::TouchBegin || type == QEvent::KeyPress || type == QEvent::Wheel
        || type == QEvent::ShortcutOverride;
}

// A key that is held is released again and again.
bool isEnd(const QEvent &event)
{
    if (event.type() == QEvent::KeyRelease)
        return !static_cast<const QKeyEvent &>(event).isAutoRepeat();
    return event.type() == QEvent::MouseButtonRelease || event.type() == QEvent::TouchEnd
        || event.type() == QEvent::TouchCancel;
}

bool isInput(QEvent::Type type)
{
    return isBegin(type) || type == QEvent::MouseMove || type == QEvent::TouchUpdate
        || type == QEvent::MouseButtonRelease || type == QEvent::TouchEnd
        || type == QEvent::TouchCancel || type == QEvent::KeyRelease;
}

} // namespace

PanelDimmer::PanelDimmer(int seconds, QWidget *screen)
    : QWidget(screen)
    , m_seconds(seconds)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
    new CoverFollower(this);
    QCoreApplication::instance()->installEventFilter(this);
    ui::BounceFilter::install(); // in front, for the finger that wakes
    waitAnew();
}

PanelDimmer::~PanelDimmer() = default;

void PanelDimmer::setSeconds(int seconds)
{
    m_seconds = seconds;
    update();
    if (!m_is_dimmed)
        waitAnew();
}

void PanelDimmer::setDarkness(int percent)
{
    m_darkness = qBound(0, percent, 100);
    update();
}

void PanelDimmer::dim()
{
    if (m_is_dimmed)
        return;
    m_is_dimmed = true;
    m_timer.stop();
    raise();
    setVisible(parentWidget());
    Q_EMIT dimmed();
}

void PanelDimmer::wake()
{
    waitAnew();
    if (!m_is_dimmed)
        return;
    m_is_dimmed = false;
    hide();
    Q_EMIT woken();
}

void PanelDimmer::waitAnew()
{
    m_since_touch.start();
    m_timer.stop();
    if (m_seconds > 0)
        wait(msOf(m_seconds));
}

void PanelDimmer::wait(qint64 ms)
{
    const qint64 most_ms = std::numeric_limits<int>::max();
    m_timer.start(int(qMin(ms, most_ms)), Qt::CoarseTimer, this);
}

// A touch only notes its time: to start a timer for each move would cost more.
void PanelDimmer::timerEvent(QTimerEvent *)
{
    const qint64 left_ms = msOf(m_seconds) - m_since_touch.elapsed();
    if (left_ms > 0)
        wait(left_ms);
    else
        dim();
}

bool PanelDimmer::eventFilter(QObject *, QEvent *event)
{
    if (!isInput(event->type()))
        return false;
    m_since_touch.start();
    if (!takes(*event))
        return false;
    event->accept(); // the toolkit would make a mouse event of a touch that is not taken
    if (m_is_dimmed)
        wake(); // may delete this
    return true;
}

bool PanelDimmer::takes(const QEvent &event)
{
    if (isBegin(event.type()) && m_is_dimmed) {
        m_is_taking = event.type() != QEvent::Wheel; // which has no end
        return true;
    }
    const bool takes = m_is_taking;
    if (isEnd(event))
        m_is_taking = false;
    return takes;
}

void PanelDimmer::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), QColor::fromRgbF(0, 0, 0, m_darkness / 100.0));
}

} // namespace vexo::hox::qt::panel
