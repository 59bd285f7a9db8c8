// SPDX-License-Identifier: MIT
//! [page]
#include <LineComponent>
#include <VexoColors>

#include <QPainter>

using namespace vexo::hox::qt::ui;

// The lines of VexoRuler::MainUnderCentralFunctionButton, in a paint of your own.
void drawRuler(QPainter *painter, int width)
{
    int y = 0;
    for (const LineComponent &line :
        { LineComponent{ VexoColors::C6, 1 }, LineComponent{ VexoColors::C0, 2 } }) {
        painter->fillRect(0, y, width, line.thickness, line.color);
        y += line.thickness;
    }
}
//! [page]
