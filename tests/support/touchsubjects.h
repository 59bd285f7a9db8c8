#pragma once
// SPDX-License-Identifier: MIT

#include <QAction>
#include <QByteArray>
#include <QMetaType>
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
    bool is_silent = false; ///< no press of it rings
};

/// Every class that takes a touch. Pulsing buttons pulse each 50 ms.
const std::vector<TouchSubject> &touchSubjects();
/// A row "subject" for each of them.
void addTouchSubjects();

/// One of them, made.
struct TouchTarget
{
    explicit TouchTarget(const TouchSubject &of);

    const TouchSubject *subject;
    QWidget *whole;
    QWidget *touched; ///< the whole or its part
    QAction *ticks; ///< triggered at each pulse, null if there are none
};

Q_DECLARE_METATYPE(const TouchSubject *)
