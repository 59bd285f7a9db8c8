// SPDX-License-Identifier: MIT
#include "gallery/widgets/formground.h"

#include "gallery/measures.h"
#include "gallery/widgets/ground.h"

#include <QGridLayout>
#include <QLabel>

FormGround::FormGround(int columns, const QColor &color)
    : m_grid(new QGridLayout(this))
    , m_columns(columns)
{
    setGround(this, color);
    m_grid->setContentsMargins(mmX(4), mmY(3), mmX(4), mmY(4));
    m_grid->setHorizontalSpacing(mmX(4));
    m_grid->setVerticalSpacing(mmY(1));
    for (int column = 0; column < columns; ++column)
        m_grid->setColumnStretch(column, 1);
}

void FormGround::add(const QString &caption, QWidget *field)
{
    const int row = startRow(m_count / m_columns);
    const int column = m_count % m_columns;
    ++m_count;
    auto *label = new QLabel(caption);
    label->setFont(ptFont(7));
    label->setBuddy(field);
    m_grid->addWidget(label, row, column);
    m_grid->addWidget(field, row + 1, column);
}

// Three rows of the grid: a gap to the line above, captions, fields.
int FormGround::startRow(int line)
{
    if (line > 0)
        m_grid->setRowMinimumHeight(3 * line, mmY(1));
    return 3 * line + 1;
}
