// SPDX-License-Identifier: MIT
#include "gallery/pages/icontilespage.h"

#include "gallery/measures.h"
#include "gallery/widgets/tilelayout.h"

#include <VexoCenteredVectorButton>
#include <VexoIconButton>

#include <QLabel>

using namespace vexo::hox::qt::ui;

namespace {

const char *const plus = ":/widgetimages/Icons_Round_Small/RoundButton_S_Plus";
const char *const minus = ":/widgetimages/Icons_Round_Small/RoundButton_S_Minus";
const char *const tick = ":/widgetimages/RoundButton_S_Tick";

// The icons are as wide as high: their view boxes are square.
VexoCenteredVectorButton *createTile(const QString &icon, const QString &text)
{
    auto *tile = new VexoCenteredVectorButton;
    tile->setIconPath(icon + "_Active.svg");
    tile->addIcon(ActiveButton::CLICKED_STATE_NAME, icon + "_Pressed.svg");
    tile->setText(text);
    return tile;
}

VexoCenteredVectorButton *createTile(
    const QString &icon, const QString &text, const QString &subtext)
{
    VexoCenteredVectorButton *tile = createTile(icon, text);
    tile->setSubtext(subtext);
    tile->setSubtextFontSizeInPt(7); // leaves room below it
    return tile;
}

void countPresses(VexoCenteredVectorButton *tile)
{
    int count = 0;
    QObject::connect(tile->getButtonInstance(), &VexoIconButton::clicked, tile,
        [=]() mutable { tile->setSubtext(QString("pressed %1 x").arg(++count)); });
}

} // namespace

IconTilesPage::IconTilesPage()
    : Page("Tiles with icons",
        "Each tile is a VexoCenteredVectorButton of fixed size, 30 x 28 mm unless told otherwise. "
        "Its icon is what is pressed.")
{
    addPressed();
    addStates();
    addMeasures();
}

void IconTilesPage::addPressed()
{
    TileLayout *tiles = addTiles("Press the icons", 30, { 1, 1 });
    const QStringList texts{ "Add", "Remove", "Confirm" };
    const QStringList icons{ plus, minus, tick };
    for (int i = 0; i < texts.size(); ++i) {
        VexoCenteredVectorButton *tile = createTile(icons.at(i), texts.at(i), "not pressed");
        countPresses(tile);
        tiles->addWidget(tile);
    }
}

void IconTilesPage::addStates()
{
    TileLayout *tiles = addTiles("States", 30, { 1, 1 });
    VexoCenteredVectorButton *checked = createTile(tick, "Light", "checked");
    checked->getButtonInstance()->setCheckable(true);
    checked->getButtonInstance()->setChecked(true);
    VexoCenteredVectorButton *inactive = createTile(tick, "Light", "disabled");
    inactive->addIcon(ActiveButton::INACTIVE_STATE_NAME, QString(tick) + "_Inactive.svg");
    inactive->setEnabled(false);
    tiles->addWidget(checked);
    tiles->addWidget(inactive);
    tiles->addWidget(createTile(tick, "Text only"));
}

void IconTilesPage::addMeasures()
{
    TileLayout *tiles = addTiles("Measures", 40, { 1, 1 });
    VexoCenteredVectorButton *small = createTile(plus, "20 x 18 mm");
    small->setWidthInMm(20);
    small->setHeightInMm(18);
    small->setIconSizeInMm(7);
    small->setIconTopSpacingInMm(3);
    small->setTextFontSizeInPt(7);
    tiles->addWidget(small);
    VexoCenteredVectorButton *large = createTile(plus, "40 x 36 mm", "icon 20 mm");
    large->setWidthInMm(40);
    large->setHeightInMm(36);
    large->setIconSizeInMm(20);
    large->setTextFontSizeInPt(13);
    tiles->addWidget(large);
    tiles->setAlignment(small, Qt::AlignLeft | Qt::AlignTop);
}
