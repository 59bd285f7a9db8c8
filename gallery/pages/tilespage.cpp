// SPDX-License-Identifier: MIT
#include "gallery/pages/tilespage.h"

#include "gallery/measures.h"

#include <VexoDesignVectorButton>

#include <QGridLayout>

using namespace vexo::hox::qt::ui;

namespace {

VexoDesignVectorButton *createTile(const QString &icon, const QString &text, const QString &subtext)
{
    auto *tile = new VexoDesignVectorButton;
    tile->addIcon(ActiveButton::DEFAULT_STATE_NAME, icon);
    tile->setMmIconSize(QSizeF(0, 6));
    tile->createMissingInverseIcons();
    tile->setText(text);
    tile->setSubtext(subtext);
    return tile;
}

QGridLayout *createGrid()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(mmX(1));
    grid->setVerticalSpacing(mmY(1));
    return grid;
}

} // namespace

TilesPage::TilesPage()
    : Page("Tiles",
        "Each tile is a VexoDesignVectorButton of fixed height. Press one: it turns dark and shows "
        "the inverse of its icon.")
{
    addColumns();
    addToggles();
}

void TilesPage::addColumns()
{
    const QStringList texts{ "Info", "Menu", "Enter", "Shift" };
    const QStringList icons{ ":/VexoIconGeneralInfoSvg", ":/generalmenuSvg",
        ":/VexoIconGeneralEnter", ":/VexoIconGeneralShift" };
    for (int columns = 1; columns <= texts.size(); ++columns) {
        const QStringList headings{ "One column", "Two columns", "Three columns", "Four columns" };
        addSection(headings.at(columns - 1));
        QGridLayout *grid = createGrid();
        for (int i = 0; i < columns; ++i) {
            grid->addWidget(
                createTile(icons.at(i), texts.at(i), columns < 4 ? "Subtext" : ""), 0, i);
            grid->setColumnStretch(i, 1);
        }
        addBlock(grid);
    }
}

void TilesPage::addToggles()
{
    addSection("On and off");
    QGridLayout *grid = createGrid();
    for (int i = 0; i < 3; ++i) {
        VexoDesignVectorButton *tile = createTile(":/VexoIconGeneralTickSvg", "Light", "");
        tile->setCheckable(true);
        tile->setOnText("Light is on");
        tile->setOffText("Light is off");
        tile->setOnSubtext("Touch to switch off");
        tile->setOffSubtext("Touch to switch on");
        tile->setDarkButtonWhenOn(true);
        tile->setChecked(i > 0);
        tile->setIgnoreBackgroundDarkRendering(i == 2);
        grid->addWidget(tile, i / 2, i % 2);
        grid->setColumnStretch(i % 2, 1);
    }
    addBlock(grid);
}
