// SPDX-License-Identifier: MIT
#include "panel/keylook_p.h"

#include <VexoColors>
#include <VexoKeyboardButton>

namespace vexo::hox::qt::panel {

namespace {

using Button = ui::VexoKeyboardButton;

const double corner_mm = 1;

QString imageOf(KeyboardKey::Function function)
{
    switch (function) {
    case KeyboardKey::Shift:
        return QStringLiteral(":/VexoIconGeneralShift");
    case KeyboardKey::Delete:
        return QStringLiteral(":/VexoIconGeneralReset");
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
    default:
        return QStringLiteral("specialKey");
    }
}

void addImage(Button *button, const char *state, const QString &image)
{
    button->addIcon(QLatin1String(state), image);
    button->addInverseIcon(QLatin1String(state), image + QStringLiteral("C0"));
}

} // namespace

void dressKey(Button *button, KeyboardKey::Function function)
{
    button->setObjectName(objectNameOf(function));
    button->setStandardBorderDrawingDisabled(false);
    button->setBorderColor(ui::VexoColors::C12);
    button->setCornerRadius(corner_mm);
    button->setMinimumHeight(0); // the keyboard shares out its own height
    button->setMaximumHeight(QWIDGETSIZE_MAX);
    if (!imageOf(function).isEmpty())
        addImage(button, Button::DEFAULT_STATE_NAME, imageOf(function));
    if (function != KeyboardKey::Shift)
        return;
    addImage(button, Button::ALTERNATIVE_STATE_NAME, QStringLiteral(":/keyboards/ShiftLock"));
    button->setCheckable(true);
}

// A click has toggled it already, and taken its image for that of another state.
void showShiftOn(Button *button, bool is_on, bool is_locked)
{
    button->setChecked(is_on);
    button->setState(
        QLatin1String(is_locked ? Button::ALTERNATIVE_STATE_NAME : Button::DEFAULT_STATE_NAME));
}

} // namespace vexo::hox::qt::panel
