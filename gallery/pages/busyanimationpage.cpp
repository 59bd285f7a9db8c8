// SPDX-License-Identifier: MIT
#include "gallery/pages/busyanimationpage.h"

#include "gallery/measures.h"
#include "gallery/widgets/busysign.h"
#include "gallery/widgets/framedground.h"
#include "gallery/widgets/tilelayout.h"

#include <VexoColors>
#include <VexoPushButton>

using namespace vexo::hox::qt::ui;

BusyAnimationPage::BusyAnimationPage()
    : Page("Busy animation",
        "Flips through image files, one every 500 ms. They are loaded and scaled in a thread of "
        "their own, as soon as the animation is made.")
    , m_button(new VexoPushButton)
{
    m_button->setFixedWidth(mmX(40));
    connect(m_button, &VexoPushButton::clicked, this, [this] { setTurning(!m_is_turning); });
    addBlock(m_button);
    addSizes();
    addSpeeds();
    addMissingFile();
    setTurning(false);
}

void BusyAnimationPage::hideEvent(QHideEvent *event)
{
    setTurning(false);
    Page::hideEvent(event);
}

void BusyAnimationPage::addSizes()
{
    TileLayout *tiles = addTiles("Sizes and grounds", 20);
    for (const int mm : { 8, 16 }) {
        const QString caption = QString("%1 x %1 mm").arg(mm);
        tiles->addLayout(
            createCaptioned(adopt(new BusySign(BusySign::ringFiles("C3"), mm), VexoColors::C1),
                caption + ", dark images", Qt::AlignLeft));
        tiles->addLayout(
            createCaptioned(adopt(new BusySign(BusySign::ringFiles("C0"), mm), VexoColors::C3),
                caption + ", light images", Qt::AlignLeft));
    }
}

void BusyAnimationPage::addSpeeds()
{
    TileLayout *tiles = addTiles("Speeds", 30);
    const auto add = [&](int steps, int step_ms, const QString &caption) {
        auto *sign = new BusySign(BusySign::ringFiles("C3", steps), 10, step_ms);
        tiles->addLayout(createCaptioned(adopt(sign, VexoColors::C1), caption, Qt::AlignLeft));
    };
    add(12, 0, "twelve images: a turn in 6 s");
    add(4, 0, "four images: a turn in 2 s");
    add(12, 100, "twelve images, a timer of the application takes one every 100 ms: 1.2 s");
}

void BusyAnimationPage::addMissingFile()
{
    addSection("A missing file");
    const QStringList files{ BusySign::ringFiles("C3").constFirst(), "missing.svg" };
    TileLayout *tiles = addTiles(46);
    tiles->addLayout(createCaptioned(adopt(new BusySign(files, 10), VexoColors::C1),
        "The second of two cannot be read: nothing is shown in its step", Qt::AlignLeft));
}

QWidget *BusyAnimationPage::adopt(BusySign *sign, const QColor &ground)
{
    m_signs += sign;
    return new FramedGround(ground, sign, mmSize(2, 2));
}

void BusyAnimationPage::setTurning(bool turning)
{
    m_is_turning = turning;
    m_button->setText(turning ? "Stop" : "Start");
    for (BusySign *sign : qAsConst(m_signs))
        sign->setTurning(turning);
}
