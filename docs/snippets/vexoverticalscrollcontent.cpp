// SPDX-License-Identifier: MIT
//! [page]
#include <VexoVerticalScrollArea>
#include <VexoVerticalScrollContent>

#include <QLayout>

using namespace vexo::hox::qt::ui;

// Tiles below each other, in the middle of the area.
VexoVerticalScrollContent *createColumn(const QList<QWidget *> &tiles)
{
    auto *content = new VexoVerticalScrollContent;
    content->centered();
    for (QWidget *tile : tiles)
        content->layout()->addWidget(tile);
    return content;
}
//! [page]
