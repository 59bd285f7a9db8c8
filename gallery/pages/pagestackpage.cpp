// SPDX-License-Identifier: MIT
#include "gallery/pages/pagestackpage.h"

#include "gallery/measures.h"
#include "gallery/widgets/framedground.h"
#include "gallery/widgets/ground.h"
#include "gallery/widgets/tilelayout.h"

#include <CachedVectorIcon>
#include <PageStack>
#include <VexoColors>
#include <VexoFunctionButton>
#include <VexoIconButton>
#include <VexoRuler>

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

using namespace vexo::hox::qt::panel;
using namespace vexo::hox::qt::ui;

namespace {

const QStringList rooms{ "Hall", "Kitchen", "Garden" };

QLayout *createHead(PageStack *stack, const QString &title, bool has_back)
{
    auto *head = new QHBoxLayout;
    head->setContentsMargins(mmX(3), mmY(2), mmX(3), mmY(2));
    if (has_back) {
        auto *back = new VexoIconButton;
        back->setMmIconSize(QSizeF(0, 6));
        back->addIcon(ActiveButton::DEFAULT_STATE_NAME, ":/arrowListLeftSvg");
        back->setFixedSize(mmSize(9, 9));
        back->setAccessibleName("Back");
        QObject::connect(back, &QAbstractButton::clicked, stack, &PageStack::back);
        head->addWidget(back);
    }
    auto *text = new QLabel(title);
    text->setFont(ptFont(10, QFont::Medium));
    text->setMinimumHeight(mmY(9));
    head->addWidget(text, 1);
    return head;
}

VexoFunctionButton *createRow(const QString &text)
{
    auto *row = new VexoFunctionButton(nullptr, VexoFunctionButton::ActionType);
    row->setText(text);
    row->setMmIndent(4);
    return row;
}

QWidget *createPage(PageStack *stack, const QString &title, const QStringList &names)
{
    auto *page = new QWidget;
    setGround(page, VexoColors::C0);
    auto *column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(createHead(stack, title, stack->page()));
    for (const QString &name : names) {
        column->addWidget(new VexoRuler(nullptr, VexoRuler::MainMiddle));
        VexoFunctionButton *row = createRow(name);
        QObject::connect(
            row, &VexoFunctionButton::clicked, stack, [stack, name] { stack->open(name); });
        column->addWidget(row);
    }
    column->addStretch();
    return page;
}

PageStack *createStack(int slide_ms)
{
    auto *stack = new PageStack;
    stack->setSlideMs(slide_ms);
    stack->setFixedHeight(mmY(58));
    stack->addPage("Rooms", [stack] { return createPage(stack, "Rooms", rooms); });
    for (const QString &room : rooms)
        stack->addPage(
            room,
            [stack, room] {
                return createPage(stack, room, { "Lights", "Heating" });
            },
            PageStack::Dropped);
    for (const QString &part : { QString("Lights"), QString("Heating") })
        stack->addPage(part, [stack, part] { return createPage(stack, part, {}); });
    stack->open("Rooms");
    return stack;
}

} // namespace

PageStackPage::PageStackPage()
    : Page("Pages",
        "Pages with a way back. A page is made when it is first shown, and a room is dropped when "
        "it is left.")
{
    auto *tiles = new TileLayout(mmX(60), mmSize(4, 4));
    for (const int slide_ms : { 0, 200 }) {
        PageStack *stack = createStack(slide_ms);
        if (slide_ms > 0)
            stack->open(rooms.first());
        tiles->addLayout(createCaptioned(new FramedGround(VexoColors::C0, stack, { 1, 1 }),
            slide_ms == 0 ? "At once" : "The page that is left slides away in 200 ms"));
    }
    addSection("Rooms and what is in them");
    addBlock(tiles);
}
