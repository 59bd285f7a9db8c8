// SPDX-License-Identifier: MIT
#include "gallery/pages/rulerspage.h"

#include "gallery/measures.h"
#include "gallery/widgets/framedground.h"
#include "gallery/widgets/tilelayout.h"

#include <VexoColors>
#include <VexoLineSpacer>
#include <VexoRuler>

#include <QHBoxLayout>
#include <QLabel>
#include <QMetaEnum>
#include <QVBoxLayout>

using namespace vexo::hox::qt::ui;

namespace {

// The same on white, on the ground of labels and on that of pressed buttons, and what it is.
template <typename Create>
QLayout *createTile(const QString &name, Create create)
{
    auto *grounds = new QHBoxLayout;
    grounds->setSpacing(mmX(1));
    for (const QColor &color : { VexoColors::C0, VexoColors::C2, VexoColors::C4 })
        grounds->addWidget(new FramedGround(color, create(), mmSize(0.4, 2)));
    auto *tile = new QVBoxLayout;
    tile->setSpacing(mmY(1));
    tile->addLayout(grounds);
    auto *text = new QLabel(name);
    text->setWordWrap(true);
    tile->addWidget(text);
    tile->addStretch();
    return tile;
}

} // namespace

RulersPage::RulersPage()
    : Page("Rulers and spacers",
        "Rulers are horizontal separators a few pixels high, on white, C2 and C4. Spacers are "
        "engraved lines of a thickness in millimetres.")
{
    addStyles();
    addWhiteSpace();
    addSpacers();
}

void RulersPage::addStyles()
{
    TileLayout *tiles = addTiles("The fifteen styles of VexoRuler", 45, { 4, 5 });
    const QMetaEnum styles = QMetaEnum::fromType<VexoRuler::VexoRulerStyle>();
    for (int i = 0; i < styles.keyCount(); ++i) {
        const auto style = VexoRuler::VexoRulerStyle(styles.value(i));
        const int height = VexoRuler(nullptr, style).minimumHeight();
        tiles->addLayout(createTile(QString("%1, %2 px").arg(styles.key(i)).arg(height),
            [style] { return new VexoRuler(nullptr, style); }));
    }
}

void RulersPage::addWhiteSpace()
{
    TileLayout *tiles = addTiles("White space above", 45, { 4, 5 });
    for (const float mm : { 1.0F, 3.0F }) {
        tiles->addLayout(createTile(QString("MainMiddle below %1 mm").arg(double(mm)),
            [mm] { return new VexoRuler(nullptr, VexoRuler::MainMiddle, mm); }));
    }
    tiles->addLayout(createTile("MainUnderCentralFunctionButton in orange and olive", [] {
        auto *ruler = new VexoRuler(nullptr, VexoRuler::MainUnderCentralFunctionButton);
        ruler->setFirstLineColor(VexoColors::C8);
        ruler->setSecondLineColor(VexoColors::C11);
        ruler->setRulerStyle(VexoRuler::MainUnderCentralFunctionButton);
        return ruler;
    }));
}

void RulersPage::addSpacers()
{
    TileLayout *tiles = addTiles("VexoLineSpacer", 45, { 4, 5 });
    const auto add = [tiles](bool is_vertical, double dark_mm, double light_mm) {
        const QString name = QString("%1, %2 mm dark and %3 mm light")
                                 .arg(is_vertical ? "Vertical" : "Horizontal")
                                 .arg(dark_mm)
                                 .arg(light_mm);
        tiles->addLayout(createTile(name, [=] {
            auto *spacer = new VexoLineSpacer;
            spacer->setDarkLineThickness(dark_mm);
            spacer->setLightLineThickness(light_mm);
            spacer->setIsVerticalSpacer(is_vertical);
            spacer->setFixedHeight(mmY(8));
            return spacer;
        }));
    };
    add(true, 0.2, 0.2);
    add(false, 0.2, 0.2);
    add(true, 0.6, 0.3);
}
