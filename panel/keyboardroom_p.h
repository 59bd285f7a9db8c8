#pragma once
// SPDX-License-Identifier: MIT

#include <QRect>

class QWidget;

namespace vexo::hox::qt::panel {

/// The part of \a screen, px of it, that lies above the keyboards on it: those in its window, and
/// what an input method shows.
QRect roomAboveKeyboards(const QWidget &screen);
/// Asks what lies over the window of \a keyboard, which comes, goes or moves, to look for its place
/// again.
void tellOfKeyboard(const QWidget &keyboard);

} // namespace vexo::hox::qt::panel
