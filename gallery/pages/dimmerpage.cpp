// SPDX-License-Identifier: MIT
#include "gallery/pages/dimmerpage.h"

#include "gallery/measures.h"
#include "gallery/widgets/screenframe.h"
#include "gallery/widgets/tilelayout.h"

#include <PanelDimmer>
#include <VexoPushButton>

#include <QLabel>
#include <QVBoxLayout>

using namespace vexo::hox::qt::panel;
using namespace vexo::hox::qt::ui;

DimmerPage::DimmerPage()
    : Page("Dimmer",
        "A screen that darkens when nobody has touched the application for a while. The touch that "
        "wakes it does nothing else, wherever it is.")
{
    auto *tiles = new TileLayout(mmX(60), mmSize(4, 4));
    auto *bright = new ScreenFrame(50);
    auto *dark = new ScreenFrame(50);
    auto *dimmer = new PanelDimmer(0, dark);
    dimmer->dim();
    tiles->addLayout(createCaptioned(bright, "Awake"));
    tiles->addLayout(createCaptioned(dark, "Dimmed until the next touch"));
    addSection("A screen that wakes, and one that sleeps");
    addBlock(tiles);

    QLabel *state = createText("The window sleeps only when it is asked to.", 7, QFont::Normal);
    auto *button = new VexoPushButton;
    button->setText("Dim the window");
    button->setFixedWidth(mmX(60));
    connect(button, &VexoPushButton::clicked, this, [this, state] {
        auto *over = new PanelDimmer(0, window());
        connect(over, &PanelDimmer::woken, state, [state, over] {
            state->setText("Woken, and nothing was pressed.");
            over->deleteLater();
        });
        over->dim();
    });
    addBlock(state);
    addBlock(button);
}
