// SPDX-License-Identifier: MIT
#include "gallery/widgets/lamp.h"

#include "gallery/measures.h"
#include "gallery/widgets/toneflash.h"

#include <VexoColors>

#include <QPainter>

using vexo::hox::qt::ui::VexoColors;

Lamp::Lamp(double diameter_in_mm, QWidget *parent)
    : QWidget(parent)
{
    setFixedSize(mmSize(diameter_in_mm, diameter_in_mm));
    if (ToneFlash *flash = ToneFlash::installed())
        connect(flash, &ToneFlash::litChanged, this, &Lamp::setLit);
}

void Lamp::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_is_lit ? VexoColors::C7 : VexoColors::C5);
    painter.drawEllipse(rect());
}

void Lamp::setLit(bool lit)
{
    m_is_lit = lit;
    update();
}
