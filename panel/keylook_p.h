#pragma once
// SPDX-License-Identifier: MIT

#include "panel/keyboardlayout_p.h"

#include <QColor>

namespace vexo::hox::qt::ui {
class VexoKeyboardButton;
}

namespace vexo::hox::qt::panel {

/// The colours of a keyboard whose letters are dark, or light.
struct KeyColors
{
    QColor ground; ///< between the keys
    QColor key; ///< of a letter
    QColor special_key;
    QColor ink;
    QColor pressed_key;
    QColor pressed_ink;
    QColor outline; ///< of what lies above the keys

    static const KeyColors &of(bool is_dark);
};

/// Gives a key the form of its function, and a height that a layout may change.
void dressKey(ui::VexoKeyboardButton *button, KeyboardKey::Function function);
/// Gives it the colours and the image of its function, on this \a ground.
void colorKey(ui::VexoKeyboardButton *button, KeyboardKey::Function function, bool is_dark,
    const QColor &ground);
/// Shows on the key whether shift is on, and whether it stays.
void showShiftOn(ui::VexoKeyboardButton *button, bool is_on, bool is_locked);

} // namespace vexo::hox::qt::panel
