#pragma once
// SPDX-License-Identifier: MIT

#include "ui/touch/taplimit_p.h"

#include <QPoint>

class QMouseEvent;
class QWidget;

namespace vexo::hox::qt::ui {

/// The press that goes on. There is one finger, so one widget at most is pressed; each class that
/// takes a touch tells here when it begins, moves and ends.
///
/// A press ends by its release or is taken back: by the toolkit's scroller, and by all that
/// TouchWatch knows. The scroller hands the widget a release far off every screen; so does this
/// class, whatever the reason. A widget thus has two ends to tell apart, both in its release
/// handler, and nothing to watch.
class Press
{
public:
    enum End {
        Unknown, ///< there was no press
        TakenBack,
        Late, ///< the finger of a press that was taken back, or never came, has been lifted
        Swiped, ///< released after it had wandered too far
        Released
    };

    /// \a widget is touched by \a event, at \a position in any coordinate system. A press before,
    /// whose release was lost, is taken back first. False, with the event ignored, if it is not the
    /// left button, or if a scroller has held it back until \a widget was out of reach.
    static bool begin(QWidget *widget, QMouseEvent *event, const QPoint &position = QPoint());
    static bool isOn(const QWidget *widget);
    /// Whether what is pressed is \a whole or a part of it.
    static bool isWithin(const QWidget *whole);
    /// The finger may still be on it.
    static bool wasTakenBack(const QWidget *widget);

    /// The finger has moved.
    static void move(const QWidget *widget);
    /// The finger has moved to \a position. Beyond \a limit it is a swipe, even if it comes
    /// back.
    static void move(const QWidget *widget, const QPoint &position, const TapLimit &limit);

    /// Whether a list held the press back, and so all moves before the release; they count now.
    static bool missedMoves(const QWidget *widget);
    /// Whether \a release lifts a finger that has moved; asked before end().
    static bool isSlide(const QWidget *widget, const QMouseEvent &release);
    /// Ends the press of \a widget, if there is one. A button that is taken back comes up, so that
    /// no place of the release clicks.
    static End end(QWidget *widget, const QMouseEvent &release);

    /// Makes the scroller of \a list forget a press that it holds back. What the finger does until
    /// the next press is nobody's.
    static void dropHeldBack(QWidget *list);

private:
    static void takeBack();
};

} // namespace vexo::hox::qt::ui
