// SPDX-License-Identifier: MIT
//! [page]
#include <VexoCenteredVectorButton>
#include <VexoIconButton>

#include <functional>

using namespace vexo::hox::qt::ui;

// A tile of 30 x 28 mm whose icon is pressed. Icons are as wide as high, so take square images.
VexoCenteredVectorButton *createConfirmTile(QWidget *parent, const std::function<void()> &confirm)
{
    auto *tile = new VexoCenteredVectorButton(parent);
    tile->setText("Confirm");
    tile->setIconPath(":/widgetimages/RoundButton_S_Tick_Active.svg");
    tile->addIcon(
        ActiveButton::CLICKED_STATE_NAME, ":/widgetimages/RoundButton_S_Tick_Pressed.svg");
    QObject::connect(tile->getButtonInstance(), &VexoIconButton::clicked, tile, confirm);
    return tile;
}
//! [page]
