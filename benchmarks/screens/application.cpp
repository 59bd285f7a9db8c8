// SPDX-License-Identifier: MIT
#include "benchmarks/support/screen.h"

#include "panelwindow.h"

namespace bench {

// The whole panel application, with its own sheets, which comes up with the start screen.
Screen makeScreen()
{
    Screen screen;
    screen.window = std::make_unique<PanelWindow>();
    screen.actions = { fullRepaint(screen.window.get()) };
    return screen;
}

} // namespace bench
