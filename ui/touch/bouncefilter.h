#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"

#include <QObject>
#include <QPoint>
#include <QSet>
#include <QVector>

class QMouseEvent;
class QTouchEvent;

namespace vexo::hox::qt::ui {

/// Swallows the second contact of a finger that bounces: one within 40 ms of a lift and 5 mm of its
/// place, sooner than a finger can tap again. It would be a click of its own, in a list even one
/// after a swipe, on what has just come up a press that nobody meant. It holds for mouse and touch
/// events that the windows of the application get, stock widgets included.
class HOXQUI_EXPORT BounceFilter : public QObject
{
    Q_OBJECT

public:
    /// Filters from now on, in front of the event filters that the application has so far. The
    /// first touch of a button of the library does it, too; call it where the first touch may be on
    /// another widget. To call it again costs nothing.
    static void install();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using QObject::QObject;

    struct Lift
    {
        ulong ms; // timestamp
        QPoint place; // px of the screen
    };

    bool takesTouch(QTouchEvent *event);
    bool takesPress(const QMouseEvent &press);
    bool takesRelease(const QMouseEvent &release);
    bool isBounce(const QPoint &place, ulong ms) const;
    void noteLift(const QPoint &place, ulong ms);

    QVector<Lift> m_lifts; // the latest; of two thumbs, either one may bounce
    QSet<int> m_bounces; // numbers of touch points
    bool m_takes_mouse = false; // until its release
};

} // namespace vexo::hox::qt::ui
