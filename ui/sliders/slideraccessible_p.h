#pragma once
// SPDX-License-Identifier: MIT

namespace vexo::hox::qt::ui {

/// From now on assistive technology sees each VexoSlider with real values, as its user does; the
/// toolkit would tell and take the index of a step.
void makeSlidersAccessible();

} // namespace vexo::hox::qt::ui
