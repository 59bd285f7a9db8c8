#pragma once
// SPDX-License-Identifier: MIT

#include "uitest/hoxquitest_export.h"

#include <QPointF>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <random>

namespace vexo::hox::qt::uitest {

class TouchInput;

/// A finger on the screen of an application under test. Its touches are those of a touch device:
/// they go through the window system interface, and the toolkit makes mouse events of them where
/// nothing takes the touch, as on a panel. All places and ways are in millimetres of the panel,
/// converted by ScalingInfo.
///
/// The finger has a clock of its own, on which a tap takes 80 ms, two taps lie 600 ms apart, and it
/// is reported each 10 ms while it moves; a busy machine does not make it slower. Only hold(),
/// slide() and flick() take time of the test, too: timers and kinetic lists need it. Each operation
/// returns when the touch has been handled.
///
/// With errors set, the finger is as bad as a real one on a real panel. The same seed gives the
/// same errors.
class HOXQUITEST_EXPORT Finger
{
public:
    /// Touches \a window, which must be shown; not owned, and may be deleted at any time.
    explicit Finger(QWidget *window, quint32 seed = 1);

    /// Each reported place is off by a normal error of \a mm in each direction, never by more than
    /// twice that. Default 0; a negative number or NaN counts as 0.
    Finger &setJitter(double mm);
    /// After each lift there is a second contact of 10 ms, \a ms later. Default 0: none.
    Finger &setBounce(int ms);
    /// While it is down the finger wanders within \a mm of its place, or of its way. Default 0; a
    /// negative number or NaN counts as 0.
    Finger &setWiggle(double mm);

    /// Taps the centre of \a target.
    void tap(QWidget *target);
    /// Taps \a target at \a mm from its top left.
    void tap(QWidget *target, const QPointF &mm);
    /// Holds the centre of \a target for \a ms.
    void hold(QWidget *target, int ms);
    /// From \a from_mm, as counted from the top left of \a target, by \a by_mm within \a ms; rests
    /// for 150 ms before it lifts.
    void slide(QWidget *target, const QPointF &from_mm, const QPointF &by_mm, int ms);
    /// From the centre of \a target by \a by_mm within \a ms; lifts while it moves.
    void flick(QWidget *target, const QPointF &by_mm, int ms);
    /// Down on the centre of \a target, up \a mm outside its \a edge.
    void slideOff(QWidget *target, Qt::Edge edge, double mm);

    /// Why the last touch could not have reached its target: that is no part of the window, is not
    /// visible, lies outside the window or under something else. Empty if it could. It was touched
    /// all the same, unless there is no window on the screen or no target.
    QString lastProblem() const { return m_problem; }

private:
    struct Way;

    void touch(QWidget *target, const QPointF &from_mm, const Way &way);
    void wander(TouchInput &input, const QPointF &from, const Way &way);
    void lift(TouchInput &input, const QPointF &at);
    QPointF reported(const QPointF &px);
    QPointF wiggled(const QPointF &px);

    QPointer<QWidget> m_window;
    std::mt19937 m_random;
    double m_jitter_mm = 0;
    double m_wiggle_mm = 0;
    int m_bounce_ms = 0;
    QString m_problem;
};

} // namespace vexo::hox::qt::uitest
