#pragma once
// SPDX-License-Identifier: MIT

#include <QFont>
#include <QSize>

/// Whole pixels of a width of \a mm millimetres on the panel; at least 1 for a width above 0.
int mmX(double mm);
/// The same for a height.
int mmY(double mm);
QSize mmSize(double width, double height);

/// The application's font, \a pt points high, in \a weight (QFont::Weight).
QFont ptFont(double pt, int weight = QFont::Light);
