// SPDX-License-Identifier: MIT
#include "panel/keylook_p.h"

#include <VexoColors>
#include <VexoKeyboardButton>

namespace vexo::hox::qt::panel {

namespace {

using Button = ui::VexoKeyboardButton;
using ui::VexoColors;

const double corner_mm = 1;

QString imageOf(KeyboardKey::Function function)
{
    switch (function) {
    case KeyboardKey::Shift:
        return QStringLiteral(":/VexoIconGeneralShift");
    case KeyboardKey::Delete:
        return QStringLiteral(":/keyboards/Delete");
    case KeyboardKey::Enter:
        return QStringLiteral(":/VexoIconGeneralEnter");
    case KeyboardKey::Tab:
        return QStringLiteral(":/keyboards/Tab");
    case KeyboardKey::Next:
        return QStringLiteral(":/keyboards/Globe");
    case KeyboardKey::Hide:
        return QStringLiteral(":/keyboards/HideKeyboard");
    default:
        return QString();
    }
}

QString objectNameOf(KeyboardKey::Function function)
{
    switch (function) {
    case KeyboardKey::Character:
    case KeyboardKey::Comma:
        return Button::STANDARD_KEY_OBJECT_NAME;
    case KeyboardKey::Space:
        return Button::SPACE_BUTTON_OBJECT_NAME;
    case KeyboardKey::Shift:
        return Button::SHIFT_LEFT_BUTTON_OBJECT_NAME;
    case KeyboardKey::Enter:
        return QStringLiteral("enterKey");
    default:
        return QStringLiteral("specialKey");
    }
}

QString inked(const QString &image, bool is_light)
{
    return is_light ? image + QStringLiteral("C0") : image;
}

} // namespace

const KeyColors &KeyColors::of(bool is_dark)
{
    static const KeyColors light{ VexoColors::C6, VexoColors::C1, VexoColors::C13, VexoColors::C3,
        VexoColors::C4, VexoColors::C0, VexoColors::C5 };
    static const KeyColors dark{ QColor(30, 30, 30), VexoColors::C4, VexoColors::C3, VexoColors::C1,
        VexoColors::C13, VexoColors::C3, VexoColors::C5 };
    return is_dark ? dark : light;
}

void dressKey(Button *button, KeyboardKey::Function function)
{
    button->setObjectName(objectNameOf(function));
    button->setStandardBorderDrawingDisabled(false);
    button->setCornerRadius(corner_mm);
    button->setMinimumHeight(0); // the keyboard shares out its own height
    button->setMaximumHeight(QWIDGETSIZE_MAX);
    button->setCheckable(function == KeyboardKey::Shift);
}

// An outline of the ground's colour, half of which lies outside the key, leaves clean corners.
void colorKey(Button *button, KeyboardKey::Function function, bool is_dark, const QColor &ground)
{
    const KeyColors &colors = KeyColors::of(is_dark);
    const bool is_enter = function == KeyboardKey::Enter;
    button->setBorderColor(ground);
    button->setBackgroundColor(colors.key);
    button->setBackgroundSpecialKeyColor(is_enter ? VexoColors::C7 : colors.special_key);
    button->setBackgroundClickedColor(colors.pressed_key);
    button->setTextColor(colors.ink);
    button->setTextClickedColor(colors.pressed_ink);
    button->removeIcons(); // else a state keeps the one that it has
    const auto add = [&](const char *state, const QString &image) {
        button->addIcon(QLatin1String(state), inked(image, is_dark && !is_enter));
        button->addInverseIcon(QLatin1String(state), inked(image, !is_dark));
    };
    if (!imageOf(function).isEmpty())
        add(Button::DEFAULT_STATE_NAME, imageOf(function));
    if (function == KeyboardKey::Shift)
        add(Button::ALTERNATIVE_STATE_NAME, QStringLiteral(":/keyboards/ShiftLock"));
}

// A click has toggled it already, and taken its image for that of another state.
void showShiftOn(Button *button, bool is_on, bool is_locked)
{
    button->setChecked(is_on);
    button->setState(
        QLatin1String(is_locked ? Button::ALTERNATIVE_STATE_NAME : Button::DEFAULT_STATE_NAME));
}

} // namespace vexo::hox::qt::panel
