// SPDX-License-Identifier: MIT
#include "gallery/pages/headlinespage.h"

#include "gallery/measures.h"
#include "gallery/widgets/framedground.h"
#include "gallery/widgets/tilelayout.h"

#include <VexoColors>
#include <VexoImageHeadline>

#include <QLabel>

using namespace vexo::hox::qt::ui;

namespace {

using Headline = VexoImageHeadline;

const char *const menu = ":/generalmenuSvg";
const QSizeF icon_in_mm(0, 6); // as wide as the image makes it

Headline *createHeadline(const QString &text, const QString &icon = menu)
{
    return new Headline(icon, icon_in_mm, text);
}

// The outline shows how far a headline reaches.
void addOutlined(TileLayout *tiles, Headline *headline, const QString &caption = QString())
{
    auto *outlined = new FramedGround(VexoColors::C0, headline, QSize(1, 1));
    tiles->addLayout(Page::createCaptioned(outlined, caption, Qt::AlignLeft));
}

} // namespace

HeadlinesPage::HeadlinesPage()
    : Page("Headlines",
        "An icon and a text in a row of fixed size, 70 x 10 mm by itself. The icon has a place of "
        "its own, so that the texts of all headlines begin at the same distance.")
{
    addIcons();
    addSizes();
    addTexts();
    addSheets();
}

void HeadlinesPage::addIcons()
{
    TileLayout *tiles = addTiles("Icons", 70);
    addOutlined(tiles, createHeadline("Menu"));
    addOutlined(tiles, createHeadline("About this panel", ":/VexoIconGeneralInfoSvg"));
    addOutlined(tiles, createHeadline("Finished", ":/VexoIconGeneralTickSvg"));
    addOutlined(tiles, createHeadline("Add a device", ":/VexoIconGeneralPlusSvg"));
    addOutlined(tiles, createHeadline("Two colours", ":/widgetimages/RoundButton_S_X_Pressed.svg"));
    addOutlined(tiles, createHeadline("An image that cannot be read", "missing.svg"));
}

void HeadlinesPage::addSizes()
{
    TileLayout *tiles = addTiles("Sizes", 70);
    Headline *small = createHeadline("Small");
    small->setSvgImage(menu, QSizeF(0, 4));
    small->setPtFontSize(7);
    small->setHeightMM(7);
    small->setWidthMM(40);
    addOutlined(tiles, small, "40 x 7 mm, 7 pt, icon 4 mm high");
    Headline *large = createHeadline("Large");
    large->setSvgImage(menu, QSizeF(0, 10));
    large->setPtFontSize(16);
    large->setHeightMM(14);
    addOutlined(tiles, large, "70 x 14 mm, 16 pt, icon 10 mm high");
    Headline *near = createHeadline("Near");
    near->setImageCanvasWidthMM(5);
    addOutlined(tiles, near, "place of the icon 5 mm wide instead of 9 mm");
    Headline *far = createHeadline("Far");
    far->setSpacerSizeInMm(6);
    addOutlined(tiles, far, "gap of 6 mm instead of 1 mm");
}

void HeadlinesPage::addTexts()
{
    TileLayout *tiles = addTiles("Texts", 70);
    addOutlined(tiles,
        createHeadline("A text that needs more room than its headline has beside the icon"),
        "cut at the end; the place of the icon gives way before");
    Headline *fitting = createHeadline("A smaller font makes room for a longer text");
    fitting->setPtFontSize(7);
    addOutlined(tiles, fitting, "7 pt");
    addOutlined(tiles, createHeadline(QString::fromUtf8("Größe und Übertragung")));
    addOutlined(tiles, createHeadline(QString::fromUtf8("屏幕尺寸")));
    Headline *arabic = createHeadline(QString::fromUtf8("القائمة الرئيسية"));
    arabic->setLayoutDirection(Qt::RightToLeft);
    addOutlined(tiles, arabic, "from right to left");
}

void HeadlinesPage::addSheets()
{
    TileLayout *tiles = addTiles("Stylesheet", 70);
    addOutlined(tiles, createHeadline("Without a rule"),
        "The panel's sheets have no rule for headlines: what lies behind shows through");
    Headline *dark = createHeadline("Enter a name", ":/VexoIconGeneralEnterC0");
    dark->setStyleSheet(
        QString("background: %1; color: %2;").arg(VexoColors::C3.name(), VexoColors::C0.name()));
    addOutlined(tiles, dark, "With a sheet of the application, which also colours the text");
}
