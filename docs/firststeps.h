#pragma once
// SPDX-License-Identifier: MIT

#include <QSize>
#include <QSizeF>

#include <functional>

class QWidget;

/// How many programs docs/first-panel-screen.md has.
const int first_steps = 7;

/// Runs the main() of examples/first-panel/step<number>.cpp on a panel of \a px and \a mm, calls
/// \a use with its window when that is shown, and ends it with what that returns. Returns what
/// main() does. It happens in a process of its own: the toolkit's scrollers know but one
/// application object. There must be none before. The settings of the program are those of the
/// environment.
int runFirstStep(
    int number, const QSize &px, const QSizeF &mm, const std::function<int(QWidget *)> &use);
