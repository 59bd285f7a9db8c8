// SPDX-License-Identifier: MIT
#include "gallery/pages/noticepage.h"

#include "gallery/measures.h"
#include "gallery/widgets/screenframe.h"

#include <PanelNotice>
#include <VexoColors>
#include <VexoPushButton>

#include <QLabel>
#include <QVBoxLayout>

using namespace vexo::hox::qt::panel;
using namespace vexo::hox::qt::ui;

NoticePage::NoticePage()
    : Page("Notice",
        "A line over a screen that goes again by itself; a tap sends it away. What lies beside it "
        "is touched as usual.")
{
    auto *screen = new ScreenFrame(62);
    auto *below = new PanelNotice(Qt::BottomEdge, screen);
    auto *above = new PanelNotice(Qt::TopEdge, screen);
    above->setBackgroundColor(VexoColors::C13);
    above->setTextColor(VexoColors::C3);
    for (PanelNotice *notice : { below, above })
        notice->setMs(0);
    below->tell("Saved");
    above->tell("The camera at the front door is not connected; its picture is a minute old.");
    addSection("At the lower and the upper edge");
    addBlock(screen);

    auto *button = new VexoPushButton;
    button->setText("For four seconds");
    button->setFixedWidth(mmX(60));
    connect(button, &VexoPushButton::clicked, below, [below] {
        below->setMs(4000);
        below->tell("Gone in four seconds");
    });
    addBlock(button);
}
