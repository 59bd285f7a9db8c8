#include "gallery/pagelist.h"

#include "gallery/pages/iconbuttonspage.h"
#include "gallery/pages/imagespage.h"
#include "gallery/pages/keyboardpage.h"
#include "gallery/pages/measuredbuttonpage.h"
#include "gallery/pages/palettepage.h"
#include "gallery/pages/stylesheetpage.h"
#include "gallery/pages/tilespage.h"
#include "gallery/pages/typepage.h"

namespace {

template <typename T>
Page *build()
{
    return new T;
}

} // namespace

const QVector<PageEntry> &pageList()
{
    static const QVector<PageEntry> pages{
        { "palette", "Palette and pens", build<PalettePage> },
        { "type", "Type", build<TypePage> },
        { "images", "Images", build<ImagesPage> },
        { "stylesheets", "Stylesheets", build<StylesheetPage> },
        { "measured-button", "Measured button", build<MeasuredButtonPage> },
        { "icon-buttons", "Icon buttons", build<IconButtonsPage> },
        { "tiles", "Tiles", build<TilesPage> },
        { "keyboard", "Keyboard", build<KeyboardPage> },
    };
    return pages;
}

QStringList pageNames()
{
    QStringList names;
    for (const PageEntry &page : pageList())
        names += page.name;
    return names;
}
