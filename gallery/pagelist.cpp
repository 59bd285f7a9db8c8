// SPDX-License-Identifier: MIT
#include "gallery/pagelist.h"

#include "gallery/pages/busyanimationpage.h"
#include "gallery/pages/checkandradiopage.h"
#include "gallery/pages/dialogpage.h"
#include "gallery/pages/dimmerpage.h"
#include "gallery/pages/formpage.h"
#include "gallery/pages/headlinespage.h"
#include "gallery/pages/iconbuttonspage.h"
#include "gallery/pages/icontilespage.h"
#include "gallery/pages/imagespage.h"
#include "gallery/pages/keyboardpage.h"
#include "gallery/pages/labelspage.h"
#include "gallery/pages/lineeditspage.h"
#include "gallery/pages/listspage.h"
#include "gallery/pages/loginpage.h"
#include "gallery/pages/logopage.h"
#include "gallery/pages/measuredbuttonpage.h"
#include "gallery/pages/mmsheetspage.h"
#include "gallery/pages/noticepage.h"
#include "gallery/pages/pagestackpage.h"
#include "gallery/pages/palettepage.h"
#include "gallery/pages/pinpage.h"
#include "gallery/pages/pushbuttonspage.h"
#include "gallery/pages/rowspage.h"
#include "gallery/pages/rulerspage.h"
#include "gallery/pages/screenpage.h"
#include "gallery/pages/settingspage.h"
#include "gallery/pages/sliderspage.h"
#include "gallery/pages/stepperpage.h"
#include "gallery/pages/stringspage.h"
#include "gallery/pages/stylesheetpage.h"
#include "gallery/pages/textrowspage.h"
#include "gallery/pages/tilespage.h"
#include "gallery/pages/typepage.h"
#include "gallery/pages/updatewindowpage.h"
#include "gallery/pages/videopage.h"

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
        { "screen", "Screen", build<ScreenPage> },
        { "images", "Images", build<ImagesPage> },
        { "stylesheets", "Stylesheets", build<StylesheetPage> },
        { "mm-sheets", "Sheets in mm", build<MmSheetsPage> },
        { "measured-button", "Measured button", build<MeasuredButtonPage> },
        { "icon-buttons", "Icon buttons", build<IconButtonsPage> },
        { "tiles", "Tiles", build<TilesPage> },
        { "icon-tiles", "Tiles with icons", build<IconTilesPage> },
        { "keyboard", "Keyboard", build<KeyboardPage> },
        { "push-buttons", "Push buttons", build<PushButtonsPage> },
        { "rows", "Rows", build<RowsPage> },
        { "check-and-radio", "Check and radio", build<CheckAndRadioPage> },
        { "stepper", "Stepper", build<StepperPage> },
        { "settings", "Settings screen", build<SettingsPage> },
        { "labels", "Labels", build<LabelsPage> },
        { "rulers", "Rulers and spacers", build<RulersPage> },
        { "logo", "Logo", build<LogoPage> },
        { "text-rows", "Text rows", build<TextRowsPage> },
        { "line-edits", "Line edits", build<LineEditsPage> },
        { "pin", "PIN entry", build<PinPage> },
        { "login", "Login form", build<LoginPage> },
        { "sliders", "Sliders", build<SlidersPage> },
        { "form", "Form", build<FormPage> },
        { "lists", "Lists", build<ListsPage> },
        { "headlines", "Headlines", build<HeadlinesPage> },
        { "page-stack", "Pages", build<PageStackPage> },
        { "dialog", "Dialog", build<DialogPage> },
        { "notice", "Notice", build<NoticePage> },
        { "dimmer", "Dimmer", build<DimmerPage> },
        { "video", "Video", build<VideoPage> },
        { "busy-animation", "Busy animation", build<BusyAnimationPage> },
        { "update-window", "Update window", build<UpdateWindowPage> },
        { "strings", "Strings", build<StringsPage> },
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
