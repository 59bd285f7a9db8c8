// SPDX-License-Identifier: MIT
//! [page]
#include <VexoCheckBox>

#include <functional>

using namespace vexo::hox::qt::ui;

// In a list that scrolls by swiping: a finger that wanders more than 12 px ticks nothing.
VexoCheckBox *createNightModeBox(QWidget *list, const std::function<void(bool)> &dim)
{
    auto *box = new VexoCheckBox(list);
    box->setText("Night mode");
    box->setMouseMoveDelta(12);
    QObject::connect(box, &VexoCheckBox::toggled, list, dim);
    return box;
}
//! [page]
