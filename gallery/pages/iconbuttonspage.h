#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

#include <QTimer>

namespace vexo::hox::qt::ui {
class VexoIconButton;
}

/// Icon buttons in all their states, blinking in step, flashing once, and with easy access.
class IconButtonsPage : public Page
{
public:
    IconButtonsPage();

private:
    using Button = vexo::hox::qt::ui::VexoIconButton;

    void addStates();
    void addBlinking();
    void addOneShot();
    void addEasyAccess();
    void startBlinking(Button *button, QTimer *timer);

    QTimer m_slow;
    QTimer m_fast;
};
