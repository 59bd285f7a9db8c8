#pragma once
// SPDX-License-Identifier: MIT

#include <functional>
#include <string>
#include <vector>

class QWidget;

namespace bench {

/// A kind of widget of which a screen has many.
struct Kind
{
    std::string name;
    /// Makes a scroll area with that many of them, one below the other.
    std::function<QWidget *(int count)> make;
};
/// Defined by each side: the same kinds from the library's widgets and from stock ones.
std::vector<Kind> kinds();

/// Puts another stylesheet with the same rules in place, in the way of each side.
void restyle();

/// A stock scroll area with \a count widgets from \a make.
QWidget *makeColumn(int count, const std::function<QWidget *()> &make);

} // namespace bench
