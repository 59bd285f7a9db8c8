// SPDX-License-Identifier: MIT
//! [page]
#include <ActiveVectorButton>

using namespace vexo::hox::qt::ui;

// A choice: plus, and a tick once it is chosen; 12 mm high, as wide as the image makes it.
ActiveVectorButton *createChoice(QWidget *parent)
{
    auto *button = new ActiveVectorButton(parent);
    button->setCheckable(true);
    button->setMmIconSize(QSizeF(0, 12)); // before the icons, so that each is rendered once
    button->addIcon(ActiveButton::DEFAULT_STATE_NAME, ":/VexoIconGeneralPlusSvg");
    button->addIcon(ActiveButton::CLICKED_STATE_NAME, ":/VexoIconGeneralTickSvg");
    button->setIconSize(button->pxIconSize()); // px: the toolkit draws them as they were rendered
    return button;
}
//! [page]
