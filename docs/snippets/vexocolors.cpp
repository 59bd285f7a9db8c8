// SPDX-License-Identifier: MIT
//! [page]
#include <VexoColors>

#include <QPainter>

using namespace vexo::hox::qt::ui;

// A lamp: lime while lit, grey else, in a dark outline.
void drawLamp(QPainter *painter, const QRect &lamp, bool is_lit)
{
    painter->setPen(VexoColors::pen);
    painter->setBrush(is_lit ? VexoColors::C7 : VexoColors::C6);
    painter->drawEllipse(lamp);
}
//! [page]
