#pragma once
// SPDX-License-Identifier: MIT

#include <QObject>
#include <QPoint>

class QMouseEvent;

namespace vexo::hox::qt::ui {

/// Swallows the second contact of a finger that bounces: one at the same place within 40 ms of the
/// lift, sooner than a finger can tap again. It would be a click of its own, in a list even one
/// after a swipe. Filters what the application's windows get, from the first touch on: to come and
/// go with each touch costs more.
class BounceFilter : public QObject
{
public:
    /// A finger is down.
    static void watch();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using QObject::QObject;

    bool isBounce(const QMouseEvent &press) const;
    void noteLift(const QMouseEvent &release);

    ulong m_lift_ms = 0; // timestamp
    QPoint m_place; // of the lift, px of the screen
    bool m_is_swallowing = false;
};

} // namespace vexo::hox::qt::ui
