#pragma once
// SPDX-License-Identifier: MIT

#include "screen.h"

namespace vexo::hox::qt::ui {
class VexoLineEdit;
}

/// Asks for the PIN, 2026, before the update.
class PinScreen : public Screen
{
    Q_OBJECT

public:
    explicit PinScreen(PanelWindow *panel);

private:
    void check(const QString &digits);

    vexo::hox::qt::ui::VexoLineEdit *const m_field;
};
