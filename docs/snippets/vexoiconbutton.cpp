// SPDX-License-Identifier: MIT
//! [page]
#include <ScalingInfo>
#include <VexoIconButton>

using namespace vexo::hox::qt::ui;

// The icon is 12 mm high, as wide as the image makes it, and light in an outline while it is
// pressed. A layout would make the button 19 px wide, whatever its icon.
VexoIconButton *createMenuButton(QWidget *parent)
{
    auto *button = new VexoIconButton(parent);
    button->setAccessibleName("Menu");
    button->setFixedSize(ScalingInfo::inst()->mm2px(QSizeF(14, 14)).toSize());
    button->setMmIconSize(QSizeF(0, 12));
    button->addIcon(ActiveButton::DEFAULT_STATE_NAME, ":/generalmenuSvg");
    button->createMissingInverseIcons();
    return button;
}
//! [page]
