#pragma once
// SPDX-License-Identifier: MIT

#include "panel/mmsheetreader_p.h"

namespace vexo::hox::qt::panel {

/// Appends \a rule to \a text, with all lengths in px. A radius is at most a half of what the rule
/// makes sure of, width or height with padding and border: with a larger one the toolkit draws a
/// square.
void printInPixels(const SheetRule &rule, const ui::ScalingInfo &scaling, QString *text);

/// Takes from \a former what \a later, a rule of the same selector behind it, says anew. What has
/// nothing left has no selector either, and is not printed.
void dropReplaced(SheetRule *former, const SheetRule &later);

} // namespace vexo::hox::qt::panel
