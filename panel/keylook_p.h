#pragma once
// SPDX-License-Identifier: MIT

#include "panel/keyboardlayout_p.h"

namespace vexo::hox::qt::ui {
class VexoKeyboardButton;
}

namespace vexo::hox::qt::panel {

/// Gives a key the look of its function: ground, image, and a height that a layout may change.
void dressKey(ui::VexoKeyboardButton *button, KeyboardKey::Function function);
/// Shows on the key whether shift is on, and whether it stays.
void showShiftOn(ui::VexoKeyboardButton *button, bool is_on, bool is_locked);

} // namespace vexo::hox::qt::panel
