// SPDX-License-Identifier: MIT
#include "benchmarks/support/screen.h"

#include <RowList>
#include <VexoRuler>

#include <QAbstractListModel>
#include <QCoreApplication>
#include <QScrollBar>
#include <QVBoxLayout>

// The other sides are list.cpp, with 300 rows.

using namespace vexo::hox::qt::ui;

namespace bench {

namespace {

QString title(int row)
{
    const char *const titles[] = { "Wireless network", "Display and brightness", "Sound",
        "Date and time", "Language", "Software update", "User accounts", "About this device" };
    return QStringLiteral("%1 %2").arg(QLatin1String(titles[row % 8])).arg(row + 1);
}

/// Rows that are made when they are asked for, as from a database.
class Titles : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex & /*parent*/) const override
    {
#ifdef HOXQ_BENCHMARK_FEW
        return 20;
#else
        return 10000;
#endif
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        return role == Qt::DisplayRole ? title(index.row()) : QVariant();
    }
};

RowList *makeList()
{
    auto *list = new RowList;
    list->setSeparatorFactory([] { return new VexoRuler; });
    list->setModel(new Titles(list));
    return list;
}

const int step_px = 40; // of a finger that moves with 100 mm/s, 25 times a second

void scroll(QScrollBar *bar, int px)
{
    bar->setValue(bar->value() + px);
    QCoreApplication::processEvents();
}

} // namespace

Screen makeScreen()
{
    Screen screen;
    screen.window = std::make_unique<QWidget>();
    auto *layout = new QVBoxLayout(screen.window.get());
    layout->setContentsMargins(0, 0, 0, 0);
    RowList *list = makeList();
    layout->addWidget(list);
    QScrollBar *bar = list->verticalScrollBar();
    // The first run, which is not measured, uses up the rows beside those that are seen.
    const Action reveal{ "reveal", [bar, steps = 20]() mutable {
                            for (; steps > 0; --steps)
                                scroll(bar, step_px);
                            steps = 1;
                        } };
    // To and fro over rows that were seen before.
    const Action again{ "scroll", [bar, step = 0]() mutable {
                           const int steps_to_turn = 10;
                           scroll(bar, step++ / steps_to_turn % 2 == 0 ? -step_px : step_px);
                       } };
    screen.actions = { reveal, again };
    return screen;
}

} // namespace bench
