// SPDX-License-Identifier: MIT
#include "support/listscreen.h"
#include "support/paintcounter.h"
#include "support/rowmodel.h"
#include "support/virtualclock.h"

#include <VexoHorizontalTextIconButton>
#include <VexoRuler>
#include <VexoSlider>

#include <QPushButton>
#include <QStandardItemModel>

#include <climits>

using namespace vexo::hox::qt::ui;

namespace {

const int row_px = ListScreen::row_px;

using ModelChange = void (*)(RowModel &model);

} // namespace

Q_DECLARE_METATYPE(ModelChange)

class TestRowList : public VirtualTimeTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void makesFewWidgets_data();
    void makesFewWidgets();
    void scrollStepPaintsOnlyWhatComes_data();
    void scrollStepPaintsOnlyWhatComes();
    void whatIsSeenStays_data();
    void whatIsSeenStays();
    void rowsShowWhatTheModelSays();
    void imageShowsOnEachGround();
    void scrollsToAnIndex();
    void showsTheChildrenOfAnIndex();
    void fetchesMoreAtTheEnd();
    void factoryMakesRowsOfItsOwn();
    void survivesWhatIsTakenAway();
    void goesWithAPageAndItsModel();
};

void TestRowList::makesFewWidgets_data()
{
    QTest::addColumn<int>("types");
    QTest::newRow("rows of one type") << 1;
    QTest::newRow("rows of all types") << 5;
}

void TestRowList::makesFewWidgets()
{
    QFETCH(int, types);
    QVector<RowModel::Entry> entries = RowModel::entries(10000);
    for (int i = 0; i < entries.size(); ++i)
        entries[i].type = i % types == 0 ? RowList::ActionRow : i % types;
    RowModel model;
    model.insert(0, entries);
    ListScreen screen(&model);
    const int most = types == 1 ? 65 : 100; // a row has two children
    QVERIFY2(screen.widgetCount() < most, qPrintable(QString::number(screen.widgetCount())));
    QCOMPARE(screen.list->verticalScrollBar()->maximum(), (10000 - 10) * row_px);
    screen.scroll(5000);
    const int before = screen.widgetCount();
    for (int px = 5000; px < 20000; px += 37)
        screen.scroll(px);
    for (int px = 400000; px > 390000; px -= 111)
        screen.scroll(px);
    QCOMPARE(screen.widgetCount(), before);
    QCOMPARE(textAtTop(screen), model.at((screen.scrolled() + row_px / 2) / row_px).text);
    const RowList huge_list;
    RowModel huge(400000);
    ListScreen(&huge).scroll(INT_MAX); // is cut
}

void TestRowList::scrollStepPaintsOnlyWhatComes_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("a text") << int(RowList::ActionRow);
    QTest::newRow("two texts and an image") << int(RowList::TextIconRow);
}

void TestRowList::scrollStepPaintsOnlyWhatComes()
{
    QFETCH(int, type);
    RowModel model;
    model.insert(0, RowModel::entries(1000, type));
    ListScreen screen(&model);
    screen.setStyleSheet("QWidget { background: #f0f0f0; }"); // lets the list shine
    settle();
    PaintCounter paints;
    QWidget *const row = screen.list->rowAt(model.index(4));
    paints.watch(row);
    for (const int px : { 5, 10 }) { // the first one may still lay out
        screen.scroll(px);
        paints.take(screen.list);
    }
    paints.take(row);
    for (int px = 30; px < 170; px += 20) {
        screen.scroll(px);
        QCOMPARE(paints.take(row), 0);
    }
    virtualclock::pass(700); // at rest
    QCOMPARE(paints.take(row), 0);
    QCOMPARE(wrongPixels(screen), QRect());
}

void TestRowList::whatIsSeenStays_data()
{
    QTest::addColumn<ModelChange>("change");
    QTest::addColumn<QString>("top"); // row 50 is, when nothing has changed
    const auto row = [](const char *name, int top, ModelChange change) {
        QTest::newRow(name) << change << QString::number(top);
    };
    row("rows come above", 50, [](RowModel &model) { model.insert(10, RowModel::entries(7)); });
    row("rows come just above", 50,
        [](RowModel &model) { model.insert(50, RowModel::entries(7)); });
    row("rows come below", 50, [](RowModel &model) { model.insert(51, RowModel::entries(7)); });
    row("rows above go", 50, [](RowModel &model) { model.remove(10, 7); });
    row("all rows above go", 50, [](RowModel &model) { model.remove(0, 50); });
    row("rows below go", 50, [](RowModel &model) { model.remove(52, 40); });
    row("it goes", 52, [](RowModel &model) { model.remove(50, 2); });
    row("it goes with rows above", 60, [](RowModel &model) { model.remove(40, 20); });
    row("a row moves up past it", 50, [](RowModel &model) { model.move(90, 3); });
    row("a row moves down past it", 50, [](RowModel &model) { model.move(3, 90); });
    row("it moves", 49, [](RowModel &model) { model.move(50, 3); });
    row("all turn round", 149, [](RowModel &model) { model.turnRound(); });
    row("reset", 1, [](RowModel &model) { model.reset({ { "1" } }); });
}

void TestRowList::whatIsSeenStays()
{
    QFETCH(ModelChange, change);
    QVector<RowModel::Entry> entries(200);
    for (int i = 0; i < entries.size(); ++i)
        entries[i].text = QString::number(i);
    RowModel model;
    model.insert(0, entries);
    ListScreen screen(&model);
    screen.scroll(50 * row_px + 17);
    change(model);
    QTEST(textAtTop(screen), "top");
    if (screen.scrolled() > 0)
        QCOMPARE(screen.scrolled() % row_px, 17);
    settle();
    QCOMPARE(wrongPixels(screen), QRect());
    screen.scroll(0);
    const QString first = model.at(0).text;
    model.insert(0, RowModel::entries(3));
    QVERIFY(textAtTop(screen) != first);
}

void TestRowList::rowsShowWhatTheModelSays()
{
    QStandardItemModel model;
    for (int i = 0; i < 100; ++i) {
        auto *item = new QStandardItem(QString::number(i));
        item->setData(QString("value %1").arg(i), RowList::SecondTextRole);
        item->setData(QString(":/VexoIconGeneralTickSvg"), Qt::DecorationRole);
        model.appendRow(item);
    }
    model.item(1)->setEnabled(false);
    model.item(2)->setData("two", Qt::AccessibleTextRole);
    ListScreen screen(&model);
    const auto row = [&](int i) { return screen.list->rowAt(model.index(i, 0)); };
    const auto *text_icon = qobject_cast<VexoHorizontalTextIconButton *>(row(0));
    QVERIFY(text_icon);
    QCOMPARE(text_icon->property("left_side_text").toString(), "0");
    QCOMPARE(text_icon->property("right_side_text").toString(), "value 0");
    QVERIFY(!text_icon->property("default_image").value<QPixmap>().isNull());
    QVERIFY(row(0)->isEnabled() && !row(1)->isEnabled());
    QCOMPARE(row(0)->accessibleName(), "0");
    QCOMPARE(row(2)->accessibleName(), "two");
    model.item(2)->setText("new");
    model.item(2)->setData(QVariant(), Qt::AccessibleTextRole);
    QCOMPARE(row(2)->accessibleName(), "new");
    model.item(0)->setCheckState(Qt::Checked); // now it is a row with a check box
    QVERIFY(screen.rowAt(0)->getButtonInstance()->isChecked());
    screen.scroll(50 * row_px);
    for (int i = 50; i < 60; ++i)
        QVERIFY(row(i)->isEnabled());
}

// The darkest and the lightest of the right end differ, whatever the row's state.
void TestRowList::imageShowsOnEachGround()
{
    QStandardItemModel model;
    model.appendRow(new QStandardItem("text"));
    model.item(0)->setData(":/VexoIconGeneralEnter", Qt::DecorationRole);
    ListScreen screen(&model);
    auto *row = qobject_cast<QAbstractButton *>(screen.list->rowAt(model.index(0, 0)));
    const auto ends = [&] { return spread(row->grab(QRect(370, 0, 30, row->height())).toImage()); };
    const int usual = ends();
    QVERIFY2(usual > 150, qPrintable(QString::number(usual)));
    row->setDown(true);
    QVERIFY2(ends() > 80, qPrintable(QString::number(ends())));
    row->setDown(false);
    model.item(0)->setEnabled(false);
    QVERIFY2(ends() < usual - 30, qPrintable(QString::number(ends())));
}

void TestRowList::scrollsToAnIndex()
{
    RowModel model(1000);
    ListScreen screen(&model);
    const auto scrolled = [&](int row, QAbstractItemView::ScrollHint hint) {
        screen.list->scrollTo(model.index(row), hint);
        return screen.scrolled();
    };
    QCOMPARE(scrolled(500, QAbstractItemView::PositionAtTop), 500 * row_px);
    QCOMPARE(scrolled(505, QAbstractItemView::EnsureVisible), 500 * row_px);
    QCOMPARE(scrolled(510, QAbstractItemView::EnsureVisible), 501 * row_px);
    QCOMPARE(scrolled(500, QAbstractItemView::EnsureVisible), 500 * row_px);
    QCOMPARE(scrolled(500, QAbstractItemView::PositionAtBottom), 491 * row_px);
    QCOMPARE(scrolled(500, QAbstractItemView::PositionAtCenter), 495 * row_px + row_px / 2);
    const RowModel other(5);
    screen.list->scrollTo(other.index(2));
    screen.list->scrollTo(QModelIndex());
    QCOMPARE(screen.scrolled(), 495 * row_px + row_px / 2);

    QWidget window; // shown later
    window.resize(300, 10 * row_px);
    RowList list(&window);
    list.resize(300, 10 * row_px);
    list.setModel(&model);
    list.scrollTo(model.index(700), QAbstractItemView::PositionAtTop);
    window.show();
    QCOMPARE(list.verticalScrollBar()->value(), 700 * row_px);
    list.setProperty("m_mm_row_height", 20.0);
    QCOMPARE(list.verticalScrollBar()->value(), 700 * 100);
    QCOMPARE(list.rowAt(model.index(700))->height(), 100);
}

void TestRowList::showsTheChildrenOfAnIndex()
{
    QStandardItemModel model;
    for (int i = 0; i < 3; ++i) {
        auto *parent = new QStandardItem(QString("parent %1").arg(i));
        for (int j = 0; j < 30; ++j)
            parent->appendRow(new QStandardItem(QString("child %1 of %2").arg(j).arg(i)));
        model.appendRow(parent);
    }
    ListScreen screen(&model);
    QCOMPARE(textAtTop(screen), "parent 0");
    const QStandardItemModel other(3, 1);
    screen.list->setRootIndex(other.index(1, 0));
    QCOMPARE(screen.list->rootIndex(), QModelIndex());
    screen.list->setRootIndex(model.index(1, 0));
    screen.scroll(5 * row_px);
    QCOMPARE(textAtTop(screen), "child 5 of 1");
    model.removeRow(0);
    model.item(0)->insertRow(0, new QStandardItem("new"));
    QCOMPARE(textAtTop(screen), "child 5 of 1");
    model.removeRow(0);
    QCOMPARE(textAtTop(screen), "parent 2");
}

void TestRowList::fetchesMoreAtTheEnd()
{
    struct Lazy : RowModel
    {
        bool canFetchMore(const QModelIndex &) const override { return rowCount() < 90; }
        void fetchMore(const QModelIndex &) override { insert(rowCount(), entries(30)); }
    };
    Lazy model;
    ListScreen screen(&model);
    QCOMPARE(model.rowCount(), 30);
    screen.scroll(INT_MAX);
    settle();
    QCOMPARE(model.rowCount(), 60);
}

void TestRowList::factoryMakesRowsOfItsOwn()
{
    QVector<RowModel::Entry> entries = RowModel::entries(400);
    for (int i = 0; i < entries.size(); i += 4)
        entries[i].type = RowList::UserRow;
    RowModel model;
    model.insert(0, entries);
    ListScreen screen(&model);
    int made = 0;
    screen.list->setRowBinder(
        [](QWidget *row, const QModelIndex &index) { row->setToolTip(index.data().toString()); });
    screen.list->setRowFactory([&](int type) -> QWidget * {
        made += type == RowList::UserRow;
        return type == RowList::UserRow ? new VexoSlider(Qt::Horizontal) : nullptr;
    });
    for (int px = 0; px < 10000; px += 40)
        screen.scroll(px);
    for (int i = 0; i < 400; ++i) {
        const QWidget *row = screen.list->rowAt(model.index(i));
        QVERIFY(!row || row->toolTip() == model.at(i).text);
        QVERIFY(!row || (qobject_cast<const VexoSlider *>(row) != nullptr) == (i % 4 == 0));
        QVERIFY(!row || row->size() == QSize(400, row_px));
    }
    QVERIFY(made > 0 && made < 8);
    screen.list->setRowFactory({});
    screen.list->setRowBinder({});
    settle();
    QCOMPARE(screen.list->findChildren<VexoSlider *>().size(), 0);
}

void TestRowList::survivesWhatIsTakenAway()
{
    RowModel model(100);
    ListScreen screen(&model);
    delete screen.list->rowAt(model.index(2));
    QCOMPARE(screen.list->rowAt(model.index(2)), nullptr);
    model.set(2, model.at(2));
    screen.scroll(20);
    screen.scroll(0);
    QVERIFY(screen.rowAt(2));
    screen.list->setWidget(new QWidget);
    QCOMPARE(screen.list->rowAt(model.index(2)), nullptr);
    model.insert(0, RowModel::entries(5));
    screen.list->setModel(nullptr);
    screen.list->setMmRowHeight(5);
    screen.list->setRowFactory({});
    screen.list->setSeparatorFactory([] { return new VexoRuler; });
    screen.list->scrollTo(model.index(5));
    screen.resize(300, 300);
    settle();
    const std::unique_ptr<RowList> hidden = std::make_unique<RowList>();
    hidden->setModel(&model);
    model.remove(0, 90);
}

// The model goes while the page still has its children, which it does not list any more.
void TestRowList::goesWithAPageAndItsModel()
{
    struct Page : QWidget
    {
        RowModel model{ 100 };
    };
    QWidget window;
    window.resize(300, 300);
    auto *ground = new QWidget(&window);
    auto *page = new Page;
    page->setParent(ground);
    auto *list = new RowList(page);
    list->setModel(&page->model);
    for (QWidget *widget : QVector<QWidget *>{ ground, page, list })
        widget->resize(300, 300);
    window.show();
    settle();
    list->scrollTo(page->model.index(50, 0));
    settle();
    delete ground;
    settle();
}

QTEST_MAIN(TestRowList)
#include "tst_rowlist.moc"
