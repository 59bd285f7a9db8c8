// SPDX-License-Identifier: MIT
#include "gallery/pages/logopage.h"

#include "gallery/measures.h"
#include "gallery/widgets/framedground.h"
#include "gallery/widgets/tilelayout.h"

#include <ScalingInfo>
#include <VexoColors>
#include <VexoLogo>
#include <VexoLogoLabel>

#include <QLabel>

using namespace vexo::hox::qt::ui;

namespace {

const char *const LOGO = ":/widgetimages/vexo.svg";

void addTile(TileLayout *tiles, const QColor &ground, QWidget *shown, const QString &text)
{
    auto *framed = new FramedGround(ground, shown, mmSize(2, 2));
    tiles->addLayout(Page::createCaptioned(framed, text, Qt::AlignLeft));
}

QLabel *createPicture(const QString &file, float width_mm)
{
    const QSize px = mmSize(38, 14);
    VexoLogo logo(uint(px.width()), uint(px.height()), QImage::Format_RGB32, file);
    logo.paint(width_mm);
    auto *label = new QLabel;
    label->setPixmap(QPixmap::fromImage(logo.image()));
    label->setAccessibleName("vexo");
    return label;
}

} // namespace

LogoPage::LogoPage()
    : Page("Logo",
        "An SVG file on white, at a width in millimetres and as high as its proportions make it.")
{
    addImages();
    addLabels();
}

void LogoPage::addImages()
{
    TileLayout *tiles = addTiles("VexoLogo, images of 38 x 14 mm", 44, { 4, 5 });
    for (const double mm : { 15.0, 30.0, 60.0 })
        addTile(tiles, VexoColors::C2, createPicture(LOGO, float(mm)),
            QString("%1 mm wide%2").arg(mm).arg(mm > 38 ? ", cut" : ""));
    addTile(tiles, VexoColors::C2, createPicture("missing.svg", 30),
        "A file that cannot be read leaves the image white");
}

void LogoPage::addLabels()
{
    TileLayout *tiles = addTiles("VexoLogoLabel, 150 x 40 px as its file", 44, { 4, 5 });
    const float whole_mm = ScalingInfo::inst()->px2mm_X(150);
    for (const float share : { 1.0F, 0.8F }) {
        auto *label
            = new VexoLogoLabel(nullptr, whole_mm * share, 150, 40, QImage::Format_RGB32, LOGO);
        label->setFixedSize(150, 40);
        label->setAccessibleName("vexo");
        addTile(tiles, VexoColors::C2, label,
            QString("%1 mm wide%2")
                .arg(double(whole_mm * share), 0, 'f', 1)
                .arg(share < 1 ? ": the image is drawn smaller, and shown smaller once more"
                               : ", as its file"));
    }
}
