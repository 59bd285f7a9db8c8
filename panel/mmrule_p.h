#pragma once
// SPDX-License-Identifier: MIT

#include "panel/mmsheetreader_p.h"

namespace vexo::hox::qt::panel {

/// The text of \a rule with all lengths in px. A radius is at most a half of what the rule makes
/// sure of, width or height with padding and border: with a larger one the toolkit draws a square.
QString ruleInPixels(const SheetRule &rule, const ui::ScalingInfo &scaling);

} // namespace vexo::hox::qt::panel
