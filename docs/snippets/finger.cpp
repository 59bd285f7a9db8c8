// SPDX-License-Identifier: MIT
//! [page]
#include <Finger>

#include <QAbstractButton>
#include <QSignalSpy>

using vexo::hox::qt::uitest::Finger;

// A thumb that is none too sure of itself still gets one click of the button.
bool clicksOnce(QWidget *screen, QAbstractButton *button)
{
    const QSignalSpy clicks(button, &QAbstractButton::clicked);
    Finger thumb(screen);
    thumb.setJitter(0.5).setBounce(30).setWiggle(1);
    thumb.tap(button);
    return clicks.size() == 1 && thumb.lastProblem().isEmpty();
}
//! [page]
