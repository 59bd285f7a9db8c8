// SPDX-License-Identifier: MIT
#include "ui/touch/bouncefilter_p.h"

#include "ui/touch/taplimit_p.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPointer>

namespace vexo::hox::qt::ui {

namespace {

const ulong longest_ms = 40;
const ulong shortest_ms = 4; // no panel reports as often; a double click of a test does

} // namespace

void BounceFilter::watch()
{
    static QPointer<BounceFilter> only_one; // goes with the application
    if (only_one)
        return;
    QCoreApplication *application = QCoreApplication::instance();
    only_one = new BounceFilter(application);
    application->installEventFilter(only_one);
}

bool BounceFilter::eventFilter(QObject *watched, QEvent *event)
{
    if (!watched->isWindowType())
        return false;
    const bool was_swallowing = m_is_swallowing;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        m_is_swallowing = isBounce(*static_cast<QMouseEvent *>(event));
        return m_is_swallowing;
    case QEvent::MouseMove:
        return m_is_swallowing;
    case QEvent::MouseButtonRelease:
        noteLift(*static_cast<QMouseEvent *>(event));
        m_is_swallowing = false;
        return was_swallowing;
    default:
        return false;
    }
}

bool BounceFilter::isBounce(const QMouseEvent &press) const
{
    const ulong pause_ms = press.timestamp() - m_lift_ms;
    return pause_ms >= shortest_ms && pause_ms <= longest_ms
        && !leadsBeyondDragStart(press.globalPos() - m_place);
}

void BounceFilter::noteLift(const QMouseEvent &release)
{
    m_lift_ms = release.timestamp();
    m_place = release.globalPos();
}

} // namespace vexo::hox::qt::ui
