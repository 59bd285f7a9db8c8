// SPDX-License-Identifier: MIT
#include "ui/scrolling/vexoverticalscrollcontent.h"

#include "ui/foundation/tightlayout_p.h"
#include "ui/scrolling/opaquerows_p.h"

#include <QVBoxLayout>

namespace vexo::hox::qt::ui {

VexoVerticalScrollContent::VexoVerticalScrollContent(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_StyledBackground);
    auto *column = new QVBoxLayout;
    tighten(column);
    column->setObjectName(QStringLiteral("ScrollVBoxLayout"));
    column->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    column->setSizeConstraint(QLayout::SetMinimumSize);
    setLayout(column);
    new OpaqueRows(this);
}

void VexoVerticalScrollContent::centered()
{
    layout()->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    layout()->invalidate();
}

void VexoVerticalScrollContent::addFromForm(QWidget *row)
{
    if (row && layout()->indexOf(row) < 0)
        layout()->addWidget(row);
}

} // namespace vexo::hox::qt::ui
