// SPDX-License-Identifier: MIT
//! [page]
#include <VexoDesignVectorButton>

using namespace vexo::hox::qt::ui;

// Says whether it is on, and is dark then.
VexoDesignVectorButton *createLightTile(QWidget *parent)
{
    auto *tile = new VexoDesignVectorButton(parent);
    tile->setMmIconSize(QSizeF(0, 8)); // as wide as the image makes it
    tile->addIcon(ActiveButton::DEFAULT_STATE_NAME, ":/VexoIconGeneralInfoSvg");
    tile->createMissingInverseIcons();
    tile->setCheckable(true);
    tile->setOnText("Light");
    tile->setOnSubtext("On");
    tile->setOffText("Light");
    tile->setOffSubtext("Off");
    return tile;
}
//! [page]
