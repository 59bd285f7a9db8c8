// SPDX-License-Identifier: MIT
//! [page]
#include <MeasuredPushButton>

#include <QLabel>

using namespace vexo::hox::qt::ui;

// A tap goes one page back. A long press goes home, while the finger is still down.
MeasuredPushButton *createBackButton(QLabel *screen)
{
    auto *button = new MeasuredPushButton(screen->parentWidget());
    button->setText("Back");
    QObject::connect(button, &MeasuredPushButton::keyPressHandling, screen,
        [screen](uint, bool short_pressed, bool pressed) {
            if (short_pressed)
                screen->setText("Last page");
            else if (pressed)
                screen->setText("Home");
        });
    return button;
}
//! [page]
