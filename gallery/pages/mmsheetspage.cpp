// SPDX-License-Identifier: MIT
#include "gallery/pages/mmsheetspage.h"

#include "gallery/measures.h"
#include "gallery/widgets/tilelayout.h"

#include <MmStylesheet>

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QListWidget>
#include <QProgressBar>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QStyledItemDelegate>
#include <QTabBar>
#include <QTableWidget>

using vexo::hox::qt::panel::MmStylesheet;

namespace {

const QStringList rooms{ "Hall", "Kitchen", "Living room", "Garden", "Cellar", "Garage" };

template <typename Widget>
Widget *named(Widget *widget, const QString &name)
{
    widget->setAccessibleName(name);
    return widget;
}

template <typename Button>
Button *createChoice(const QString &text, bool is_checked, bool is_enabled = true)
{
    auto *button = new Button(text);
    button->setAutoExclusive(false);
    button->setChecked(is_checked);
    button->setEnabled(is_enabled);
    return button;
}

QLayout *createChoices()
{
    auto *grid = new QGridLayout;
    grid->setSpacing(mmX(2));
    grid->addWidget(createChoice<QCheckBox>("Ring", true), 0, 0);
    grid->addWidget(createChoice<QCheckBox>("Knock", false), 0, 1);
    grid->addWidget(createChoice<QCheckBox>("Never", true, false), 1, 0);
    grid->addWidget(createChoice<QCheckBox>("Ever", false, false), 1, 1);
    grid->addWidget(createChoice<QRadioButton>("Left", true), 2, 0);
    grid->addWidget(createChoice<QRadioButton>("Right", false), 2, 1);
    grid->addWidget(createChoice<QRadioButton>("Above", true, false), 3, 0);
    grid->addWidget(createChoice<QRadioButton>("Below", false, false), 3, 1);
    return grid;
}

QWidget *createComboBox(bool is_enabled)
{
    auto *box = named(new QComboBox, "Room");
    box->setItemDelegate(new QStyledItemDelegate(box)); // the usual one knows no sheet
    box->addItems(rooms);
    box->setEnabled(is_enabled);
    return box;
}

QWidget *createSpinBox(int value, bool is_enabled)
{
    auto *box = named(new QSpinBox, "Minutes");
    box->setRange(0, 30);
    box->setSuffix(" min");
    box->setValue(value);
    box->setEnabled(is_enabled);
    return box;
}

QProgressBar *createProgress(int value, bool is_enabled)
{
    auto *bar = named(new QProgressBar, "Progress");
    bar->setValue(value);
    bar->setEnabled(is_enabled);
    return bar;
}

QTabBar *createTabs()
{
    auto *tabs = named(new QTabBar, "Pages");
    for (const char *text : { "Doors", "Lights", "Heat" })
        tabs->addTab(text);
    tabs->setExpanding(true);
    return tabs;
}

QSlider *createSlider(Qt::Orientation orientation, int value, bool is_enabled = true)
{
    auto *slider = named(new QSlider(orientation), "Level");
    slider->setMaximum(100);
    slider->setValue(value);
    slider->setEnabled(is_enabled);
    if (orientation == Qt::Vertical)
        slider->setMinimumHeight(mmY(30));
    return slider;
}

QLayout *createSliders()
{
    auto *row = new QHBoxLayout;
    auto *level = new QVBoxLayout;
    level->addWidget(createSlider(Qt::Horizontal, 70));
    level->addWidget(createSlider(Qt::Horizontal, 30, false));
    auto *bar = named(new QScrollBar(Qt::Horizontal), "Place");
    bar->setPageStep(40);
    bar->setValue(30);
    level->addWidget(bar);
    level->addStretch();
    row->addLayout(level, 1);
    row->addWidget(createSlider(Qt::Vertical, 70));
    row->addWidget(createSlider(Qt::Vertical, 30, false));
    return row;
}

QWidget *createList()
{
    auto *list = named(new QListWidget, "Rooms");
    list->addItems(rooms);
    list->item(3)->setFlags(Qt::NoItemFlags);
    list->setCurrentRow(1);
    list->setFixedHeight(mmY(42));
    return list;
}

QWidget *createTable()
{
    auto *table = named(new QTableWidget(3, 2), "Temperatures");
    table->setHorizontalHeaderLabels({ "Room", "Now" });
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(mmY(9.6));
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    for (int row = 0; row < table->rowCount(); ++row) {
        table->setItem(row, 0, new QTableWidgetItem(rooms.at(row)));
        table->setItem(row, 1, new QTableWidgetItem(QString("%1 °C").arg(18 + row)));
    }
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->selectRow(1);
    table->setFixedHeight(mmY(42));
    return table;
}

QWidget *createGround(MmStylesheet::Look look)
{
    auto *ground = new QWidget;
    ground->setPalette(MmStylesheet::palette(look));
    ground->setAutoFillBackground(true);
    ground->setStyleSheet(MmStylesheet(MmStylesheet::files(look)).inPixels());
    auto *column = new QVBoxLayout(ground);
    column->setContentsMargins(mmX(4), mmY(4), mmX(4), mmY(4));
    column->setSpacing(mmY(3));
    for (QLayout *part : { createChoices(), createSliders() })
        column->addLayout(part);
    for (QWidget *part : { createComboBox(true), createComboBox(false), createSpinBox(15, true),
             createSpinBox(30, true), createSpinBox(5, false) })
        column->addWidget(part);
    for (const int value : { 0, 2, 50, 100 })
        column->addWidget(createProgress(value, value != 100));
    for (QWidget *part : { static_cast<QWidget *>(createTabs()), createList(), createTable() })
        column->addWidget(part);
    return ground;
}

} // namespace

MmSheetsPage::MmSheetsPage()
    : Page("Sheets in millimetres",
        "Widgets of the toolkit in the ready sheets of MmStylesheet, whose lengths are in "
        "millimetres: as large on each panel, by day and by night.")
{
    auto *tiles = new TileLayout(mmX(60), mmSize(4, 4));
    for (const auto look : { MmStylesheet::Day, MmStylesheet::Night }) {
        auto *tile = new QVBoxLayout;
        tile->addWidget(createGround(look));
        tiles->addLayout(tile);
    }
    addSection("By day and by night");
    addBlock(tiles);
}
