// SPDX-License-Identifier: MIT
//! [page]
#include <UpdateMainWindow>

using namespace vexo::hox::qt::ui;

// Made at the start and shown when an update begins, over the whole panel.
UpdateMainWindow *createUpdateScreen()
{
    const float width_mm = 152;
    const float height_mm = 95;
    auto *window = new UpdateMainWindow(nullptr, width_mm, height_mm);
    window->setStyleSheet("background: black; color: white;");
    return window; // show() it
}
//! [page]
