#pragma once
// SPDX-License-Identifier: MIT

#include <QWidget>

#include <vector>

namespace bench {

/// Makes a widget with the texts and children that are measured, below \a parent.
using Make = QWidget *(*)(QWidget *parent);

/// A public widget class and the stock widgets that one would build the same from.
struct Pair
{
    const char *name; ///< of the class
    Make library;
    Make stock;
};
/// All of them, by name.
const std::vector<Pair> &pairs();

/// Bytes on the heap that one more of these widgets keeps once it was shown and painted, without
/// what lies in the pixmap cache, which bounds itself.
double keptBytes(Make make);

} // namespace bench
