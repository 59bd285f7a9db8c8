// SPDX-License-Identifier: MIT
//! [page]
#include <VexoRuler>

#include <QVBoxLayout>

using namespace vexo::hox::qt::ui;

// Closes a list: 2 mm of white space, then a dark line.
void addEnd(QVBoxLayout *list)
{
    list->addWidget(new VexoRuler(nullptr, VexoRuler::MainUnderLastItem, 2));
}
//! [page]
