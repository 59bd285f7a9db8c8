#pragma once
// SPDX-License-Identifier: MIT

#include <QString>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class QTimer;
class QWidget;

namespace bench {

/// Something a user does to a screen, measured many times in a row. It ends when everything it
/// caused is painted; a run that paints nothing is refused.
struct Action
{
    std::string name; ///< one word
    std::function<void()> run;
};

/// A screen of 1280 x 800 px, and what is measured on it besides its start, its memory and its
/// repaints at rest.
struct Screen
{
    std::unique_ptr<QWidget> window;
    std::vector<Action> actions;
};

/// Defined by the file of each screen, for every variant: the same screen from the library's
/// widgets when HOXQ_BENCHMARK_LIBRARY is defined, else from stock ones.
Screen makeScreen();
/// Defined by the file of each screen for the stock variant: the stylesheet that gives stock
/// widgets the look of the library's.
QString stockStyleSheet();

/// Bring fonts and stylesheet into the application; one definition of each per variant.
void setUpFonts();
void setUpSheets();
inline void setUpPanel()
{
    setUpFonts();
    setUpSheets();
}

/// Paints the whole window.
Action fullRepaint(QWidget *window);
/// One timeout of \a timer, which never runs itself, so that nothing repaints between the ticks.
Action tick(QTimer *timer);
/// Taps the next of \a buttons at each run, for well below the time of a long press.
Action pressAndRelease(const std::vector<QWidget *> &buttons);

} // namespace bench
