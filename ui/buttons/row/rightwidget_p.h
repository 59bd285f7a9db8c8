#pragma once
// SPDX-License-Identifier: MIT

#include "ui/buttons/vexofunctionbutton.h"

namespace vexo::hox::qt::ui {

/// What a row has at its right end, by its type.
class RightWidget
{
public:
    using Type = VexoFunctionButton::VexoFunctionButtonType;

    /// A child of \a row, which takes the keys itself.
    static QWidget *make(Type type, QWidget *row);
    /// Whether that is an ArrowLabel.
    static bool isArrow(Type type);
    /// Of the gap after it.
    static double gapMm(Type type);
    /// What a tap on the row does to \a widget; to an arrow and null nothing.
    static void toggle(QWidget *widget);
};

} // namespace vexo::hox::qt::ui
