#pragma once
// SPDX-License-Identifier: MIT

#include <QBasicTimer>
#include <QObject>
#include <QPoint>

class QMouseEvent;

namespace vexo::hox::qt::ui {

/// Swallows the second contact of a finger that bounces: one at the same place within 40 ms of the
/// lift, sooner than a finger can tap again. It would be a click of its own, in a list even one
/// after a swipe. Filters the events of the application's windows until the finger is lifted and
/// those 40 ms are over.
class BounceFilter : public QObject
{
public:
    /// A finger is down.
    static void watch();

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    using QObject::QObject;

    bool isBounce(const QMouseEvent &press) const;
    void noteLift(const QMouseEvent &release);

    QBasicTimer m_wait;
    ulong m_lift_ms = 0; // timestamp
    QPoint m_place; // of the lift, px of the screen
    bool m_is_swallowing = false;
};

} // namespace vexo::hox::qt::ui
