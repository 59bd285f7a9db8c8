// SPDX-License-Identifier: MIT
//! [page]
#include <VexoTextEnumeration>

#include <QVBoxLayout>

using namespace vexo::hox::qt::ui;

// The steps of an instruction, numbered from 1.
void addSteps(const QStringList &steps, QVBoxLayout *page)
{
    for (int i = 0; i < steps.size(); ++i) {
        auto *step = new VexoTextEnumeration;
        step->setText(steps.at(i), i + 1);
        page->addWidget(step);
    }
}
//! [page]
