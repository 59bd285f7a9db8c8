// SPDX-License-Identifier: MIT
#include "benchmarks/support/screen.h"

#include <QCoreApplication>
#include <QScrollBar>
#include <QVBoxLayout>

#ifdef HOXQ_BENCHMARK_LIBRARY
#include <VexoFunctionButton>
#include <VexoRuler>
#include <VexoVerticalScrollArea>
#include <VexoVerticalScrollContent>
#elif defined(HOXQ_BENCHMARK_ITEMS)
#include <QListWidget>
#else
#include <QFrame>
#include <QPushButton>
#include <QScrollArea>
#endif

namespace bench {

namespace {

const int row_count = 300;

QString title(int row)
{
    const char *const titles[] = { "Wireless network", "Display and brightness", "Sound",
        "Date and time", "Language", "Software update", "User accounts", "About this device" };
    return QStringLiteral("%1 %2").arg(QLatin1String(titles[row % 8])).arg(row + 1);
}

#ifdef HOXQ_BENCHMARK_LIBRARY

using namespace vexo::hox::qt::ui;

QAbstractScrollArea *makeList()
{
    auto *list = new VexoVerticalScrollArea;
    auto *content = new VexoVerticalScrollContent;
    for (int i = 0; i < row_count; ++i) {
        auto *row = new VexoFunctionButton(nullptr, VexoFunctionButton::ActionType);
        row->setText(title(i));
        content->layout()->addWidget(row);
        content->layout()->addWidget(new VexoRuler);
    }
    list->setWidget(content);
    return list;
}

#else

const int separator_px = 2; // a dark line above a light one

QString arrow()
{
    return QStringLiteral(":/widgetimages/VexoIconGeneralArrowListRight_44px_C3.svg");
}

void showOnlyRows(QAbstractScrollArea *list)
{
    list->setFrameShape(QFrame::NoFrame);
    list->setFocusPolicy(Qt::NoFocus);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

#ifdef HOXQ_BENCHMARK_ITEMS

// The arrow is the icon of an item, which lies at the right of its text.
QAbstractScrollArea *makeList()
{
    auto *list = new QListWidget;
    showOnlyRows(list);
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    list->setUniformItemSizes(true);
    list->setLayoutDirection(Qt::RightToLeft);
    list->setIconSize(QSize(36, 80));
    const QIcon icon(arrow());
    for (int i = 0; i < row_count; ++i) {
        auto *item = new QListWidgetItem(icon, title(i), list);
        item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter); // turned round: left
        item->setSizeHint(QSize(0, 98 + separator_px));
    }
    return list;
}

#else

QAbstractScrollArea *makeList()
{
    auto *list = new QScrollArea;
    showOnlyRows(list);
    list->setWidgetResizable(true);
    auto *content = new QWidget;
    auto *column = new QVBoxLayout(content);
    column->setSpacing(0);
    column->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i < row_count; ++i) {
        auto *row = new QPushButton(title(i));
        row->setFixedHeight(98);
        column->addWidget(row);
        auto *separator = new QFrame;
        separator->setFixedHeight(separator_px);
        column->addWidget(separator);
    }
    list->setWidget(content);
    return list;
}

#endif
#endif

const int step_px = 40; // of a finger that moves with 100 mm/s, 25 times a second

void scroll(QScrollBar *bar, int px)
{
    bar->setValue(bar->value() + px);
    QCoreApplication::processEvents();
}

Action scrollOn(QScrollBar *bar)
{
    return { "reveal", [bar] { scroll(bar, step_px); } };
}

// To and fro over rows that were seen before.
Action scrollAgain(QScrollBar *bar)
{
    return { "scroll", [bar, step = 0]() mutable {
                const int steps_to_turn = 10;
                scroll(bar, step++ / steps_to_turn % 2 == 0 ? -step_px : step_px);
            } };
}

} // namespace

Screen makeScreen()
{
    Screen screen;
    screen.window = std::make_unique<QWidget>();
    auto *layout = new QVBoxLayout(screen.window.get());
    layout->setContentsMargins(0, 0, 0, 0);
    QAbstractScrollArea *list = makeList();
    layout->addWidget(list);
    screen.actions
        = { scrollOn(list->verticalScrollBar()), scrollAgain(list->verticalScrollBar()) };
    return screen;
}

#ifndef HOXQ_BENCHMARK_LIBRARY

QString stockStyleSheet()
{
    return QStringLiteral(
        "QPushButton { border: none; color: #3c3c3c; padding: 0 30px; text-align: left;"
        " font: 500 31px; background: #f5f5f5; image: url(%1); image-position: right; }"
        "QPushButton:pressed { color: white; background: #505050; }"
        ".QFrame { background: white; border-top: 1px solid #c8c8c8; }"
        "QListView { background: #f5f5f5; border: none; font: 500 31px; }"
        "QListView::item { color: #3c3c3c; background: #f5f5f5; padding: 0 30px;"
        " border-top: 1px solid white; border-bottom: 1px solid #c8c8c8; }"
        "QListView::item:selected { color: white; background: #505050; }")
        .arg(arrow());
}

#endif

} // namespace bench
