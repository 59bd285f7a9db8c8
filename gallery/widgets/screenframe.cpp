// SPDX-License-Identifier: MIT
#include "gallery/widgets/screenframe.h"

#include "gallery/measures.h"

#include <VexoColors>
#include <VexoFunctionButton>
#include <VexoRuler>

#include <QPainter>
#include <QVBoxLayout>

using namespace vexo::hox::qt::ui;

ScreenFrame::ScreenFrame(double height)
{
    setFixedHeight(mmY(height));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(1, 1, 1, 1);
    column->setSpacing(0);
    for (const char *text : { "Doors", "Lights", "Heating", "Network" }) {
        auto *row = new VexoFunctionButton(nullptr, VexoFunctionButton::ActionType);
        row->setText(text);
        row->setMmIndent(4);
        column->addWidget(row);
        column->addWidget(new VexoRuler(nullptr, VexoRuler::MainMiddle));
    }
    column->addStretch();
}

void ScreenFrame::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), VexoColors::C0);
    painter.setPen(VexoColors::C6);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
