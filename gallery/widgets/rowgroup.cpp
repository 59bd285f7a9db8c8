// SPDX-License-Identifier: MIT
#include "gallery/widgets/rowgroup.h"

#include "gallery/widgets/ground.h"

#include <VexoColors>

#include <QVBoxLayout>

using vexo::hox::qt::ui::VexoColors;

RowGroup::RowGroup()
    : m_layout(new QVBoxLayout(this))
{
    const int line_px = 1; // the ground is seen between the rows
    setGround(this, VexoColors::C13);
    m_layout->setSpacing(line_px);
    m_layout->setContentsMargins(0, line_px, 0, line_px);
}

void RowGroup::addRow(QWidget *row)
{
    m_layout->addWidget(row);
}
