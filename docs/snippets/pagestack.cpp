// SPDX-License-Identifier: MIT
//! [page]
#include <PageStack>
#include <VexoDesignVectorButton>
#include <VexoIconButton>

using namespace vexo::hox::qt::ui;
using vexo::hox::qt::panel::PageStack;

// A start screen that is kept, and settings that are made anew each time.
void fill(PageStack *pages)
{
    pages->addPage("start", [pages] {
        auto *tile = new VexoDesignVectorButton;
        tile->setText("Settings");
        QObject::connect(
            tile, &QAbstractButton::clicked, pages, [pages] { pages->open("settings"); });
        return tile;
    });
    pages->addPage(
        "settings",
        [pages] {
            auto *back = new VexoIconButton;
            back->setAccessibleName("Back");
            QObject::connect(back, &QAbstractButton::clicked, pages, &PageStack::back);
            return back;
        },
        PageStack::Dropped);
    pages->open("start");
}
//! [page]
