#pragma once
// SPDX-License-Identifier: MIT

namespace vexo::hox::qt::ui {

/// From now on assistive technology sees each VexoFunctionButton as one object: its text, the role
/// of its right-hand widget, and whether that is checked.
void makeRowsAccessible();

} // namespace vexo::hox::qt::ui
