#pragma once
// SPDX-License-Identifier: MIT

#include <QString>

#include <optional>

namespace vexo::hox::qt::ui {

/// Counts the selectors of a stylesheet. Nothing when the toolkit might work on it for more than
/// some 50 ms per twenty widgets: too long, too many selectors and declarations in one rule, or
/// written so that they cannot be told apart (an open comment or string, escaped punctuation).
std::optional<int> selectorsOfHarmlessCss(const QString &text);

} // namespace vexo::hox::qt::ui
