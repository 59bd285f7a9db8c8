// SPDX-License-Identifier: MIT
#include "gallery/widgets/framedground.h"

#include <VexoColors>

#include <QPainter>
#include <QVBoxLayout>

using vexo::hox::qt::ui::VexoColors;

FramedGround::FramedGround(const QColor &color, QWidget *shown, const QSize &margin)
    : m_color(color)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin.width(), margin.height(), margin.width(), margin.height());
    layout->addWidget(shown);
}

void FramedGround::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(VexoColors::C13);
    painter.setBrush(m_color);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
