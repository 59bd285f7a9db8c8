#pragma once
// SPDX-License-Identifier: MIT

#include <QByteArray>
#include <QWidget>

#include <functional>
#include <vector>

/// A class that takes a touch.
struct TouchSubject
{
    const char *name;
    std::function<QWidget *()> make;
    const char *part; ///< object name of the child that is touched, empty for the widget itself
    const char *tap; ///< what a first tap emits, as Emissions tells it
    const char *click; ///< the one signal of each tap, normalized
    const char *let_go = ""; ///< what it emits when its press is taken back
    bool is_lax = false; ///< a release anywhere counts, as long as the press was not taken back
};

/// Every class that takes a touch. Pulsing buttons pulse each 50 ms.
const std::vector<TouchSubject> &touchSubjects();
/// The widget that is touched.
QWidget *touchedPart(const TouchSubject &subject, QWidget *whole);
