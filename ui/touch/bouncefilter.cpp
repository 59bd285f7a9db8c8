// SPDX-License-Identifier: MIT
#include "ui/touch/bouncefilter.h"

#include "ui/touch/taplimit_p.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QTouchEvent>

#include <algorithm>

namespace vexo::hox::qt::ui {

namespace {

const ulong longest_ms = 40;
const ulong shortest_ms = 4; // no panel reports as often; a double click of a test does

} // namespace

void BounceFilter::install()
{
    static QPointer<BounceFilter> only_one; // goes with the application
    QCoreApplication *application = QCoreApplication::instance();
    if (!only_one)
        only_one = new BounceFilter(application);
    application->installEventFilter(only_one); // to the front
}

bool BounceFilter::eventFilter(QObject *watched, QEvent *event)
{
    if (!watched->isWindowType())
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return takesPress(*static_cast<QMouseEvent *>(event));
    case QEvent::MouseMove:
        return m_takes_mouse;
    case QEvent::MouseButtonRelease:
        return takesRelease(*static_cast<QMouseEvent *>(event));
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
        return takesTouch(static_cast<QTouchEvent *>(event));
    case QEvent::TouchCancel:
        m_bounces.clear();
        return false;
    default:
        return false;
    }
}

// A finger has no other button than the left one.
bool BounceFilter::takesPress(const QMouseEvent &press)
{
    if (press.button() == Qt::LeftButton)
        m_takes_mouse = isBounce(press.globalPos(), press.timestamp());
    return m_takes_mouse;
}

bool BounceFilter::takesRelease(const QMouseEvent &release)
{
    const bool takes = m_takes_mouse;
    if (release.button() == Qt::LeftButton) {
        m_takes_mouse = false;
        noteLift(release.globalPos(), release.timestamp());
    }
    return takes;
}

// Other fingers may be down meanwhile, so a contact is taken out of the event.
bool BounceFilter::takesTouch(QTouchEvent *event)
{
    QList<QTouchEvent::TouchPoint> meant;
    const QList<QTouchEvent::TouchPoint> points = event->touchPoints();
    for (const QTouchEvent::TouchPoint &point : points) {
        const QPoint place = point.screenPos().toPoint();
        if (point.state() == Qt::TouchPointPressed && isBounce(place, event->timestamp()))
            m_bounces.insert(point.id());
        if (!m_bounces.contains(point.id()))
            meant += point;
        if (point.state() == Qt::TouchPointReleased) {
            m_bounces.remove(point.id());
            noteLift(place, event->timestamp());
        }
    }
    if (meant.size() == points.size())
        return false;
    event->setTouchPoints(meant);
    event->accept(); // else the toolkit makes a mouse event of it
    return meant.isEmpty();
}

bool BounceFilter::isBounce(const QPoint &place, ulong ms) const
{
    return std::any_of(m_lifts.begin(), m_lifts.end(), [&](const Lift &lift) {
        const ulong pause_ms = ms - lift.ms;
        return pause_ms >= shortest_ms && pause_ms <= longest_ms
            && !leadsBeyondDragStart(place - lift.place);
    });
}

void BounceFilter::noteLift(const QPoint &place, ulong ms)
{
    const auto isOver = [ms](const Lift &lift) { return ms - lift.ms > longest_ms; };
    m_lifts.erase(std::remove_if(m_lifts.begin(), m_lifts.end(), isOver), m_lifts.end());
    m_lifts.append({ ms, place });
}

} // namespace vexo::hox::qt::ui
