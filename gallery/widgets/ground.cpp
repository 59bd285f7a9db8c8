// SPDX-License-Identifier: MIT
#include "gallery/widgets/ground.h"

#include <VexoColors>

#include <QPalette>
#include <QWidget>

using vexo::hox::qt::ui::VexoColors;

void setGround(QWidget *widget, const QColor &color)
{
    QPalette colors = widget->palette();
    colors.setColor(QPalette::Window, color);
    widget->setPalette(colors);
    widget->setAutoFillBackground(true);
}

QWidget *createLine()
{
    auto *line = new QWidget;
    setGround(line, VexoColors::C13);
    line->setFixedHeight(1);
    return line;
}
