// SPDX-License-Identifier: MIT
#include "support/onscreen.h"
#include "support/paintcounter.h"
#include "support/touchscreen.h"

#include <VexoFunctionButton>
#include <VexoRuler>
#include <VexoSlider>

#include <QSet>
#include <QVBoxLayout>

#include <memory>
#include <vector>

using namespace vexo::hox::qt::ui;

namespace {

const int row_px = 50;
const int press_delay_ms = 150;
const int frame_ms = 100; // and more than one of 20 per second
const int at_rest_ms = 700;

/// 300 rows of 400 x 50 px in a view of 500 px; each tenth is a slider, the first too.
struct List : QWidget
{
    List()
    {
        resize(400, 500);
        area.resize(size());
        auto *content = new VexoVerticalScrollContent;
        for (int i = 0; i < 300; ++i)
            content->layout()->addWidget(i % 10 == 0 ? createSlider() : createRow());
        area.setWidget(content);
        show();
        virtualclock::pass(500); // the next press is not the second of a double tap
    }

    QWidget *createRow()
    {
        auto *row = new VexoFunctionButton(nullptr, VexoFunctionButton::ActionType);
        row->setFixedSize(400, row_px);
        connect(row, &VexoFunctionButton::clicked, this, [this] { ++clicks; });
        return row;
    }

    QWidget *createSlider()
    {
        auto *slider = new VexoSlider(Qt::Horizontal);
        slider->setFixedSize(400, row_px);
        slider->setMaximum(99);
        slider->finishSliderConfiguration();
        connect(slider, &VexoSlider::valueChanged, this, [this] { ++slides; });
        sliders += slider;
        return slider;
    }

    VexoFunctionButton *rowAt(int index) const
    {
        return qobject_cast<VexoFunctionButton *>(area.widget()->layout()->itemAt(index)->widget());
    }
    int scrolled() const { return area.verticalScrollBar()->value(); }

    VexoVerticalScrollArea area{ this };
    QVector<VexoSlider *> sliders;
    int clicks = 0;
    int slides = 0;
};

/// 40 opaque rows on a content without a ground, as the panel's sheet leaves it.
struct RowList
{
    RowList()
    {
        for (int i = 0; i < 40; ++i) {
            rows += new VexoFunctionButton;
            content->layout()->addWidget(rows.last());
        }
        area.setWidget(content);
        content->setAutoFillBackground(false);
        area.resize(400, 300);
        area.show();
        settle();
    }

    void makeTranslucent(int row)
    {
        QColor ground = rows[row]->backgroundColor();
        ground.setAlpha(254);
        rows[row]->setBackgroundColor(ground);
    }

    // Two steps: the first one may still lay out.
    void startScroll()
    {
        for (const int to : { 5, 10 }) {
            scroll(to);
            QCoreApplication::processEvents();
        }
    }

    void scroll(int to) { area.verticalScrollBar()->setValue(to); }
    bool isContentOpaque() const { return content->testAttribute(Qt::WA_OpaquePaintEvent); }
    void addRulers(VexoRuler::VexoRulerStyle style, VexoRuler::VexoRulerStyle later)
    {
        auto *column = static_cast<QVBoxLayout *>(content->layout());
        for (int i = column->count(); i > 0; --i) {
            auto *ruler = new VexoRuler(nullptr, style);
            column->insertWidget(i, ruler);
            ruler->setRulerStyle(later);
        }
    }

    VexoVerticalScrollArea area;
    VexoVerticalScrollContent *const content = new VexoVerticalScrollContent;
    QVector<VexoFunctionButton *> rows;
};

using Change = void (*)(RowList &list);

/// Lets the list run out; whether it has come to rest within ten seconds.
bool comesToRest(List &list)
{
    for (int i = 0; i < 1000 && list.area.getScroller()->state() != QScroller::Inactive; ++i)
        virtualclock::pass(10);
    return list.area.getScroller()->state() == QScroller::Inactive;
}

} // namespace

Q_DECLARE_METATYPE(Change)

class TestVexoVerticalScrollArea : public VirtualTimeTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void tellsATapFromAScroll_data();
    void tellsATapFromAScroll();
    void slidersDoNotStopASwipe_data();
    void slidersDoNotStopASwipe();
    void flicksOnAtLimitedSpeed();
    void stopsAtTheEnd();
    void neverScrollsSideways();
    void scrollBarIsOptional();
    void rowsLieTight();
    void scrollMovesWhatIsSeen_data();
    void scrollMovesWhatIsSeen();
    void whatNoRowHidesAnyMoreIsPainted_data();
    void whatNoRowHidesAnyMoreIsPainted();
    void viewportsTakeTheirAddressesInTurn();
};

void TestVexoVerticalScrollArea::tellsATapFromAScroll_data()
{
    QTest::addColumn<int>("hold_ms");
    QTest::addColumn<int>("way_px"); // 5 mm are 19 px here
    QTest::addColumn<bool>("scrolls");
    QTest::newRow("tap") << 0 << 0 << false;
    QTest::newRow("long tap") << 2 * press_delay_ms << 0 << false;
    QTest::newRow("less than 5 mm") << 0 << -12 << false;
    QTest::newRow("swipe") << 0 << -200 << true;
    QTest::newRow("swipe after a while") << 2 * press_delay_ms << -200 << true;
}

void TestVexoVerticalScrollArea::tellsATapFromAScroll()
{
    QFETCH(int, hold_ms);
    QFETCH(int, way_px);
    QFETCH(bool, scrolls);
    List list;
    QVector<QScroller::State> states;
    connect(&list.area, &VexoVerticalScrollArea::scrollerStateChanged, this,
        [&](QScroller::State state) { states += state; });
    const auto *row = list.rowAt(5);
    Finger finger(&list);
    finger.press({ 200, 275 });
    QVERIFY(!row->isDown()); // not before the delay
    virtualclock::pass(hold_ms);
    QCOMPARE(row->isDown(), hold_ms > press_delay_ms);
    finger.move({ 0, way_px }, 10);
    virtualclock::pass(frame_ms);
    QCOMPARE(list.scrolled() > 150, scrolls);
    finger.lift();
    QCOMPARE(list.clicks, scrolls ? 0 : 1);
    QVERIFY(comesToRest(list));
    QCOMPARE(states.contains(QScroller::Dragging), scrolls);
    QVERIFY(!row->isDown());
    QCOMPARE(list.slides, 0);
}

void TestVexoVerticalScrollArea::slidersDoNotStopASwipe_data()
{
    QTest::addColumn<int>("slider");
    QTest::addColumn<bool>("is_forwarded");
    QTest::addColumn<int>("x");
    QTest::addColumn<bool>("scrolls");
    QTest::newRow("beside the handle") << 1 << true << 200 << true;
    QTest::newRow("of the first row") << 0 << true << 200 << true;
    QTest::newRow("handle") << 1 << true << 5 << false;
    QTest::newRow("unknown slider") << 1 << false << 200 << false;
}

void TestVexoVerticalScrollArea::slidersDoNotStopASwipe()
{
    QFETCH(int, slider);
    QFETCH(bool, is_forwarded);
    QFETCH(int, x);
    QFETCH(bool, scrolls);
    List list;
    list.area.forwardSliderEvents(nullptr);
    if (is_forwarded)
        list.area.forwardSliderEvents(list.sliders[slider]);
    list.area.verticalScrollBar()->setValue(slider == 0 ? 0 : 300);
    const int before = list.scrolled();
    Finger finger(&list);
    finger.press({ x, slider * 10 * row_px - before + 25 });
    finger.move({ 40, -120 }, 10);
    virtualclock::pass(frame_ms);
    // The finger takes the list along but for the 5 mm of the start.
    const int way = list.scrolled() - before;
    QVERIFY2(scrolls ? way > 80 && way <= 120 : way == 0, qPrintable(QString::number(way)));
    finger.lift();
    QVERIFY(comesToRest(list));
    QCOMPARE(list.slides > 0, x == 5);
    QCOMPARE(list.clicks, 0);
}

void TestVexoVerticalScrollArea::flicksOnAtLimitedSpeed()
{
    List list;
    Finger finger(&list);
    finger.press({ 200, 275 });
    finger.move({ 0, -200 }, 2); // about 5 m/s
    finger.lift();
    const double speed = list.area.getScroller()->velocity().y(); // m/s
    QVERIFY2(speed > 0.5 && speed < 0.701, QByteArray::number(speed));
    QVERIFY(comesToRest(list));
    QVERIFY(list.scrolled() > 250);
    QCOMPARE(list.clicks, 0);
}

void TestVexoVerticalScrollArea::stopsAtTheEnd()
{
    List list;
    QScrollBar *bar = list.area.verticalScrollBar();
    bar->setValue(bar->maximum() - 60);
    int lowest = 0;
    Finger finger(&list);
    finger.press({ 200, 275 });
    finger.move({ 0, -200 }, 5);
    finger.lift();
    while (list.area.getScroller()->state() != QScroller::Inactive) {
        virtualclock::pass(10);
        lowest = qMin(lowest, list.area.viewport()->y());
    }
    QCOMPARE(list.scrolled(), bar->maximum());
    QCOMPARE(lowest, 0);
    list.area.scrollToTop();
    QCOMPARE(list.scrolled(), 0);
}

void TestVexoVerticalScrollArea::neverScrollsSideways()
{
    List list;
    list.rowAt(5)->setFixedWidth(700);
    QCoreApplication::processEvents(); // lays out
    const QWidget *content = list.area.widget();
    QCOMPARE(content->width(), 700);
    Finger finger(&list);
    finger.press({ 300, 275 });
    finger.move({ -100, -120 }, 10);
    finger.move({ -100, 0 }, 10);
    virtualclock::pass(frame_ms);
    QVERIFY(list.scrolled() > 0);
    finger.lift();
    QTRY_COMPARE(list.area.getScroller()->state(), QScroller::Inactive);
    list.area.ensureWidgetVisible(list.rowAt(5), 500, 0);
    list.area.horizontalScrollBar()->setValue(200);
    QCOMPARE(content->x(), 0);
}

void TestVexoVerticalScrollArea::scrollBarIsOptional()
{
    VexoVerticalScrollArea area;
    area.resize(300, 200);
    area.setWidget(new VexoVerticalScrollContent);
    area.show();
    QVERIFY(!area.verticalScrollBar()->isVisible());
    area.setProperty("scroll_bar_enabled", true); // also when everything fits
    QVERIFY(area.verticalScrollBar()->isVisible());
    QVERIFY(area.property("scroll_bar_enabled").toBool());
    QVERIFY(VexoVerticalScrollArea(nullptr, true).property("scroll_bar_enabled").toBool());
}

void TestVexoVerticalScrollArea::rowsLieTight()
{
    VexoVerticalScrollContent content;
    for (int i = 0; i < 2; ++i) {
        auto *row = new QWidget;
        row->setFixedSize(60, 20);
        content.layout()->addWidget(row);
    }
    QCOMPARE(content.layout()->objectName(), "ScrollVBoxLayout");
    const auto second = [&] {
        content.layout()->activate();
        return content.layout()->itemAt(1)->geometry();
    };
    content.resize(200, 200);
    QCOMPARE(second(), QRect(0, 20, 60, 20));
    content.centered();
    QCOMPARE(second(), QRect(70, 20, 60, 20));
}

void TestVexoVerticalScrollArea::scrollMovesWhatIsSeen_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<int>("paints"); // of a row that stays in sight
    const auto row = [](const char *name, Change change, int paints) {
        QTest::newRow(name) << change << paints;
    };
    using Ruler = VexoRuler;
    row(
        "rows only", [](RowList &) {}, 0);
    row(
        "something shines through", [](RowList &list) { list.makeTranslucent(2); }, 1);
    row(
        "something between", [](RowList &list) { list.content->layout()->setSpacing(1); }, 1);
    row(
        "rulers between",
        [](RowList &list) { list.addRulers(Ruler::MainMiddle, Ruler::MainMiddle); }, 0);
    row(
        "rulers that draw nothing between",
        [](RowList &list) { list.addRulers(Ruler::Transparent, Ruler::Transparent); }, 1);
    row(
        "rulers that are higher than their lines",
        [](RowList &list) { list.addRulers(Ruler::MainMiddle, Ruler::MainUnderHeading); }, 1);
}

void TestVexoVerticalScrollArea::scrollMovesWhatIsSeen()
{
    QFETCH(Change, change);
    RowList list;
    change(list);
    QCoreApplication::processEvents();
    PaintCounter paints;
    paints.watch(list.rows[4]);
    paints.watch(list.rows[30]);
    list.startScroll();
    paints.take(list.rows[4]);
    list.scroll(20);
    QTEST(paints.take(list.rows[4]), "paints");
    list.scroll(list.rows[30]->y());
    QCOMPARE(paints.take(list.rows[30]), 1); // comes into sight
    QCOMPARE(wrongPixels(list.area), QRect());
    virtualclock::pass(at_rest_ms);
    QVERIFY(!list.isContentOpaque());
}

void TestVexoVerticalScrollArea::whatNoRowHidesAnyMoreIsPainted_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char *name, Change change) { QTest::newRow(name) << change; };
    row("hidden, the next rows move up", [](RowList &list) { list.rows[5]->hide(); });
    row("deleted, the next rows move up", [](RowList &list) { delete list.rows.takeAt(5); });
    row("translucent", [](RowList &list) { list.makeTranslucent(5); });
    row("masked", [](RowList &list) { list.rows[5]->setMask(QRect(0, 0, 9, 9)); });
    row("moved", [](RowList &list) { list.rows[5]->move(90, 200); });
}

void TestVexoVerticalScrollArea::whatNoRowHidesAnyMoreIsPainted()
{
    QFETCH(Change, change);
    RowList list;
    list.startScroll();
    QVERIFY(list.isContentOpaque());
    change(list);
    settle();
    QVERIFY(!list.isContentOpaque());
    QCOMPARE(wrongPixels(list.area), QRect());
}

// The toolkit never forgets the address of a viewport that it painted under a stylesheet.
void TestVexoVerticalScrollArea::viewportsTakeTheirAddressesInTurn()
{
    QSet<const QWidget *> viewports;
    std::vector<std::unique_ptr<QWidget>> others; // that would take the place of one
    for (int i = 0; i < 20; ++i) {
        const VexoVerticalScrollArea area;
        viewports += area.viewport();
        others.push_back(std::make_unique<QWidget>());
    }
    QCOMPARE(viewports.size(), 1);
}

QTEST_MAIN(TestVexoVerticalScrollArea)
#include "tst_vexoverticalscrollarea.moc"
