// SPDX-License-Identifier: MIT
#include "support/listscreen.h"
#include "support/rowmodel.h"
#include "support/touchscreen.h"

#include <VexoRuler>
#include <VexoSlider>
#include <VexoVerticalButtonScrollArea>

#include <QAccessible>
#include <QPushButton>
#include <QStandardItemModel>

using namespace vexo::hox::qt::ui;

namespace {

const int row_px = ListScreen::row_px;
const int delivered_ms = 250; // longer than a list holds a press back

/// A list with a model of its own.
struct OwnScreen : ListScreen
{
    explicit OwnScreen(RowModel *of)
        : ListScreen(of)
        , model(of)
    {
    }

    std::unique_ptr<RowModel> model;
};

using Slot = void (*)(OwnScreen &screen);

RowModel *modelOf(int count, int type = RowList::ActionRow)
{
    auto *model = new RowModel;
    model->insert(0, RowModel::entries(count, type));
    return model;
}

} // namespace

Q_DECLARE_METATYPE(Slot)

/// Fingers, keys and assistive technology on a RowList.
class TestRowListInput : public VirtualTimeTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void flickGoesOnWhileRowsCome();
    void tapWritesTheModel_data();
    void tapWritesTheModel();
    void modelMayRefuse();
    void touchMeansWhatItTouched_data();
    void touchMeansWhatItTouched();
    void heldSliderStaysWithItsRow();
    void slotMay_data();
    void slotMay();
    void keysReachEachRow();
    void focusStaysWithItsRow();
    void isAListForAssistiveTechnology();
    void lettersOfABarScroll_data();
    void lettersOfABarScroll();
};

void TestRowListInput::flickGoesOnWhileRowsCome()
{
    RowModel model(1000);
    ListScreen screen(&model);
    screen.scroll(100 * row_px);
    Finger finger(&screen);
    finger.press({ 100, 400 });
    finger.move({ 0, -200 }, 5);
    finger.lift();
    QCOMPARE(screen.list->getScroller()->state(), QScroller::Scrolling);
    const int before = screen.scrolled();
    model.insert(3, RowModel::entries(20));
    QCOMPARE(screen.scrolled(), before + 20 * row_px);
    virtualclock::pass(100);
    const int way = screen.scrolled() - before - 20 * row_px;
    QVERIFY2(way > 0 && way < 300, qPrintable(QString::number(way)));
}

void TestRowListInput::tapWritesTheModel_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("x");
    QTest::addColumn<QString>("checked"); // after each of two taps
    QTest::newRow("check box row") << int(RowList::CheckboxRow) << 100 << "10";
    QTest::newRow("its check box") << int(RowList::CheckboxRow) << 385 << "10";
    QTest::newRow("arrow row") << int(RowList::ActionRow) << 100 << "00";
    QTest::newRow("radio button row") << int(RowList::RadiobuttonRow) << 100 << "11";
    QTest::newRow("its radio button") << int(RowList::RadiobuttonRow) << 385 << "11";
    QTest::newRow("chosen row") << int(RowList::FullsizeRadiobuttonRow) << 100 << "11";
    QTest::newRow("tick box") << int(RowList::TickAgreementRow) << 380 << "11";
}

void TestRowListInput::tapWritesTheModel()
{
    QFETCH(int, type);
    QFETCH(int, x);
    RowModel model;
    model.insert(0, RowModel::entries(100, type));
    ListScreen screen(&model);
    screen.scroll(20 * row_px);
    Finger finger(&screen);
    QString checked;
    for (int tap = 0; tap < 2; ++tap) {
        finger.press(screen.placeOf(23, x));
        virtualclock::pass(delivered_ms);
        finger.lift();
        virtualclock::pass(500);
        checked += QString::number(model.at(23).is_checked);
        QCOMPARE(screen.rowAt(23)->getButtonInstance()->isChecked(), model.at(23).is_checked);
    }
    QTEST(checked, "checked");
    QCOMPARE(screen.clicked, QStringList({ model.at(23).text, model.at(23).text }));
    QVERIFY(!model.at(22).is_checked && !model.at(24).is_checked);
    model.set(23, { "unchecked", type });
    QVERIFY(!screen.rowAt(23)->getButtonInstance()->isChecked());
}

void TestRowListInput::modelMayRefuse()
{
    RowModel model;
    model.insert(0, RowModel::entries(20, RowList::CheckboxRow));
    model.is_refusing = true;
    ListScreen screen(&model);
    screen.rowAt(3)->click();
    QVERIFY(!screen.rowAt(3)->getButtonInstance()->isChecked());
    QCOMPARE(screen.clicked, QStringList{ model.at(3).text });
}

void TestRowListInput::touchMeansWhatItTouched_data()
{
    QTest::addColumn<int>("hold_ms"); // before the list changes
    QTest::addColumn<Slot>("change");
    QTest::addColumn<bool>("clicks");
    const auto row = [](const char *name, Slot change, bool clicks) {
        QTest::addRow("%s, held back", name) << 0 << change << clicks;
        QTest::addRow("%s, pressed", name) << delivered_ms << change << clicks;
    };
    const auto come_above = [](OwnScreen &s) { s.model->insert(0, RowModel::entries(300)); };
    const auto change_type = [](OwnScreen &s) {
        s.model->set(3, { "other", RowList::CheckboxRow });
    };
    row(
        "scrolls a little", [](OwnScreen &s) { s.scroll(4 * row_px); }, true);
    row(
        "scrolls far", [](OwnScreen &s) { s.scroll(900 * row_px); }, true);
    row(
        "scrolls to an index", [](OwnScreen &s) { s.list->scrollTo(s.model->index(700)); }, true);
    row("rows come above", come_above, true);
    row(
        "it goes", [](OwnScreen &s) { s.model->remove(2, 2); }, false);
    row(
        "reset", [](OwnScreen &s) { s.model->reset(RowModel::entries(90)); }, false);
    row("it becomes another type", change_type, false);
}

void TestRowListInput::touchMeansWhatItTouched()
{
    QFETCH(int, hold_ms);
    QFETCH(Slot, change);
    QFETCH(bool, clicks);
    OwnScreen screen(modelOf(1000));
    const QString touched = screen.model->at(3).text;
    Finger finger(&screen);
    finger.press(screen.placeOf(3));
    virtualclock::pass(hold_ms);
    change(screen);
    for (int px = 5000; px < 8000; px += 20) // all that is not held is used anew
        screen.scroll(px);
    finger.lift();
    virtualclock::pass(500);
    QCOMPARE(screen.clicked, clicks ? QStringList{ touched } : QStringList());
    screen.scroll(0);
    screen.clicked.clear();
    finger.press(screen.placeOf(5));
    finger.lift();
    QCOMPARE(screen.clicked, QStringList{ screen.model->at(5).text });
}

void TestRowListInput::heldSliderStaysWithItsRow()
{
    RowModel model;
    model.insert(0, RowModel::entries(1000, RowList::UserRow));
    ListScreen screen(&model);
    screen.list->setRowFactory([](int) {
        auto *slider = new VexoSlider(Qt::Horizontal);
        slider->setFocusPolicy(Qt::NoFocus); // else it keeps its row
        slider->setMaximum(100);
        slider->finishSliderConfiguration();
        return slider;
    });
    settle();
    Finger finger(&screen);
    finger.press(screen.placeOf(3, 5));
    finger.move({ 60, 0 }, 3);
    auto *held = qobject_cast<VexoSlider *>(screen.list->rowAt(model.index(3)));
    QVERIFY(held->isSliderDown());
    const int value = held->value();
    QVERIFY(value > 0);
    const auto scroll_away = [&] {
        for (int px = 0; px < 3000; px += 20)
            screen.scroll(px);
    };
    scroll_away();
    finger.move({ 100, 0 }, 3);
    QCOMPARE(screen.list->indexOf(held).row(), 3);
    QVERIFY(held->value() > value);
    finger.lift();
    screen.scroll(0);
    finger.press({ 200, 450 }); // another row is touched
    finger.lift();
    scroll_away();
    QVERIFY(screen.list->indexOf(held).row() != 3);
}

void TestRowListInput::slotMay_data()
{
    QTest::addColumn<Slot>("slot");
    const auto row = [](const char *name, Slot slot) { QTest::newRow(name) << slot; };
    row("delete the model", [](OwnScreen &s) { s.model.reset(); });
    row("set another model",
        [](OwnScreen &s) { s.list->setModel(new QStandardItemModel(5, 1, s.list)); });
    row("set no model", [](OwnScreen &s) { s.list->setModel(nullptr); });
    row("remove the row", [](OwnScreen &s) { s.model->remove(3, 1); });
    row("reset the model", [](OwnScreen &s) { s.model->reset({}); });
    row("make the rows anew",
        [](OwnScreen &s) { s.list->setRowFactory([](int) { return new QPushButton; }); });
    row("scroll away", [](OwnScreen &s) { s.scroll(9000); });
    row("delete the list later", [](OwnScreen &s) { s.list->deleteLater(); });
}

void TestRowListInput::slotMay()
{
    QFETCH(Slot, slot);
    for (const int type : { RowList::ActionRow, RowList::CheckboxRow, RowList::TextIconRow }) {
        OwnScreen screen(modelOf(1000, type));
        connect(screen.list, &RowList::clicked, this, [&] { slot(screen); });
        Finger finger(&screen);
        finger.press(screen.placeOf(3));
        finger.lift();
        virtualclock::pass(500);
        QCOMPARE(screen.clicked.size(), 1);
        settle();
        QCOMPARE(wrongPixels(screen), QRect());
    }
}

void TestRowListInput::keysReachEachRow()
{
    RowModel model(60);
    for (int i = 5; i < 35; ++i)
        model.set(i, { QString::number(i), RowList::ActionRow, false, false });
    ListScreen screen(&model);
    auto *after = new QPushButton(&screen);
    after->show();
    screen.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&screen));
    screen.list->setFocus();
    for (int i = 0; i < 60; i += i == 4 ? 31 : 1) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(screen.list->indexOf(QApplication::focusWidget()).row(), i);
        QVERIFY(screen.placeOf(i).y() > 0 && screen.placeOf(i).y() < screen.height());
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QCOMPARE(screen.clicked, QStringList{ model.at(59).text });
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), after);
    for (const int i : { 59, 58 }) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
        QCOMPARE(screen.list->indexOf(QApplication::focusWidget()).row(), i);
    }
}

void TestRowListInput::focusStaysWithItsRow()
{
    RowModel model(1000);
    ListScreen screen(&model);
    screen.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&screen));
    screen.rowAt(2)->setFocus();
    screen.scroll(30000);
    model.insert(0, RowModel::entries(5));
    QCOMPARE(screen.list->indexOf(QApplication::focusWidget()).row(), 7);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QCOMPARE(screen.clicked, QStringList{ model.at(7).text });
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(screen.list->indexOf(QApplication::focusWidget()).row(), 8);
    QVERIFY(screen.placeOf(8).y() > 0);
    model.remove(8, 1); // the next one takes it
    QCOMPARE(screen.list->indexOf(QApplication::focusWidget()).row(), 8);
}

void TestRowListInput::isAListForAssistiveTechnology()
{
    RowModel model;
    model.insert(0, RowModel::entries(1000, RowList::CheckboxRow));
    model.set(401, { "off", RowList::CheckboxRow, true, false });
    ListScreen screen(&model);
    screen.list->setSeparatorFactory([] { return new VexoRuler; });
    screen.list->setAccessibleName("Contacts");
    screen.list->scrollTo(model.index(400), QAbstractItemView::PositionAtTop);
    QAccessibleInterface *list = QAccessible::queryAccessibleInterface(screen.list->widget());
    QCOMPARE(list->role(), QAccessible::List);
    QCOMPARE(list->text(QAccessible::Name), "Contacts");
    QVERIFY(list->childCount() >= 10 && list->childCount() < 20);
    int seen = 0;
    for (int i = 0, before = -1; i < list->childCount(); ++i) {
        QAccessibleInterface *child = list->child(i);
        const int row = screen.list->indexOf(qobject_cast<QWidget *>(child->object())).row();
        QVERIFY(row > before);
        before = row;
        seen += row >= 400 && row < 410;
        QCOMPARE(child->text(QAccessible::Name), model.at(row).text);
        QCOMPARE(child->role(), QAccessible::CheckBox);
        QCOMPARE(bool(child->state().checked), row == 401);
        QCOMPARE(bool(child->state().disabled), row == 401);
        QCOMPARE(list->indexOfChild(child), i);
        QCOMPARE(child->parent()->object(), list->object());
    }
    QCOMPARE(seen, 10);
}

void TestRowListInput::lettersOfABarScroll_data()
{
    QTest::addColumn<QString>("letter");
    QTest::addColumn<QString>("top");
    QTest::newRow("letter") << "M"
                            << "Martin";
    QTest::newRow("the first one has an accent") << "O" << QString::fromUtf8("Öztürk");
    QTest::newRow("no letter") << "#"
                               << "1st floor";
    QTest::newRow("nobody") << "X"
                            << "Cohen";
}

void TestRowListInput::lettersOfABarScroll()
{
    QFETCH(QString, letter);
    QStringList names{ "1st floor" };
    for (const char *name : { "adler", "Bauer", "Cohen", "Martin", "Meyer", "Öztürk", "Olsen" })
        names += QString::fromUtf8(name);
    QStandardItemModel model;
    for (const QString &name : qAsConst(names)) {
        for (int i = 0; i < 30; ++i)
            model.appendRow(new QStandardItem(name));
    }
    ListScreen screen(&model);
    VexoVerticalButtonScrollArea bar(nullptr,
        VexoVerticalButtonScrollArea::VexoVerticalButtonScrollAreaType::AlphabeticWithHash);
    screen.list->connectJumpBar(nullptr);
    screen.list->connectJumpBar(&bar);
    screen.scroll(100 * row_px);
    Finger finger(&screen);
    finger.press({ 100, 300 });
    finger.move({ 0, -100 }, 5);
    finger.lift(); // a flick, which ends
    const auto buttons = bar.findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->text() == letter)
            button->click();
    }
    const int scrolled = screen.scrolled();
    if (letter != "X") {
        virtualclock::pass(300);
        QCOMPARE(screen.scrolled(), scrolled);
        QVERIFY(scrolled == 0 || screen.list->firstOf(letter).row() * row_px == scrolled);
    }
    QTEST(textAtTop(screen), "top");
}

QTEST_MAIN(TestRowListInput)
#include "tst_rowlistinput.moc"
