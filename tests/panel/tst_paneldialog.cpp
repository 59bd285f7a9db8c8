// SPDX-License-Identifier: MIT
#include "support/paintcounter.h"
#include "support/panelscale.h"
#include "support/testcase.h"
#include "support/touch.h"

#include <Finger>
#include <PanelDialog>
#include <VexoIconButton>
#include <VexoPushButton>

#include <QAccessible>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace vexo::hox::qt::panel;
using namespace vexo::hox::qt::ui;
using vexo::hox::qt::uitest::Finger;

namespace {

struct Screen
{
    Screen()
    {
        window.resize(600, 400);
        below.setGeometry(0, 0, 100, 100);
        field.setGeometry(0, 100, 100, 30);
        window.show();
        QApplication::setActiveWindow(&window);
        field.setFocus();
    }

    const PanelScale scale{ 5, 5 };
    QWidget window;
    VexoPushButton below{ &window };
    QLineEdit field{ &window };
};

} // namespace

class TestPanelDialog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void buttonAnswers();
    void coversItsScreen();
    void answersWithoutAButton_data();
    void answersWithoutAButton();
    void endsATouchBelow_data();
    void endsATouchBelow();
    void focusStaysInsideAndGoesBack();
    void mayBeDeletedInItsSignal();
    void deletesItselfWhenAskedFor();
    void boxFitsTheScreen_data();
    void boxFitsTheScreen();
    void idleDialogPaintsNothing();
    void thatGoesIsRepaintedOnce();
};

void TestPanelDialog::buttonAnswers()
{
    Screen screen;
    PanelDialog dialog(QStringLiteral("Restart?"), &screen.window);
    QVERIFY(!dialog.isVisible());
    dialog.addButton(QStringLiteral("Cancel"));
    VexoPushButton *restart = dialog.addButton(QStringLiteral("Restart"));
    QSignalSpy answered(&dialog, &PanelDialog::answered);
    dialog.open();
    Finger(&screen.window).tap(restart);
    QCOMPARE(answered.size(), 1);
    QCOMPARE(answered.first().first().toInt(), 1);
    QVERIFY(!dialog.isVisible());
    const QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&dialog);
    QCOMPARE(interface->role(), QAccessible::Dialog);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Restart?"));
}

void TestPanelDialog::coversItsScreen()
{
    Screen screen;
    QSignalSpy clicked(&screen.below, &VexoPushButton::clicked);
    PanelDialog dialog(QString(), &screen.window);
    Finger(&screen.window).tap(&screen.below);
    QCOMPARE(clicked.size(), 1);
    dialog.open();
    screen.window.resize(500, 500);
    QCOMPARE(dialog.geometry(), screen.window.rect());
    Finger(&screen.window).tap(&screen.below);
    QCOMPARE(clicked.size(), 1);
}

void TestPanelDialog::answersWithoutAButton_data()
{
    QTest::addColumn<bool>("closes_beside");
    QTest::addColumn<QPoint>("begin");
    QTest::addColumn<QPoint>("end");
    QTest::addColumn<bool>("answers");
    const QPoint beside(10, 10);
    const QPoint inside(300, 200);
    QTest::newRow("beside") << true << beside << beside << true;
    QTest::newRow("beside, not wanted") << false << beside << beside << false;
    QTest::newRow("inside") << true << inside << inside << false;
    QTest::newRow("slides off the box") << true << inside << beside << false;
    QTest::newRow("slides onto the box") << true << beside << inside << false;
}

void TestPanelDialog::answersWithoutAButton()
{
    QFETCH(bool, closes_beside);
    QFETCH(QPoint, begin);
    QFETCH(QPoint, end);
    QFETCH(bool, answers);
    Screen screen;
    PanelDialog dialog(QStringLiteral("Restart?"), &screen.window);
    dialog.addButton(QStringLiteral("Yes"));
    dialog.setClosesBeside(closes_beside);
    QSignalSpy answered(&dialog, &PanelDialog::answered);
    dialog.open();
    touch(&dialog, { begin, end });
    QCOMPARE(answered.size(), int(answers));
    if (!answers)
        QTest::keyClick(&dialog, Qt::Key_Escape);
    QCOMPARE(answered.first().first().toInt(), -1);
    QVERIFY(!dialog.isVisible());
}

void TestPanelDialog::endsATouchBelow_data()
{
    QTest::addColumn<bool>("is_stock");
    QTest::newRow("of the library") << false;
    QTest::newRow("of the toolkit") << true;
}

void TestPanelDialog::endsATouchBelow()
{
    QFETCH(bool, is_stock);
    Screen screen;
    QPushButton stock(&screen.window);
    stock.setGeometry(200, 0, 100, 100);
    stock.show();
    QPushButton *below = is_stock ? &stock : &screen.below;
    QSignalSpy clicked(below, &QPushButton::clicked);
    PanelDialog dialog(QString(), &screen.window);
    finger(below, QEvent::MouseButtonPress, { 50, 20 });
    QVERIFY(below->isDown());
    dialog.open();
    QVERIFY(!below->isDown());
    finger(below, QEvent::MouseButtonRelease, { 50, 20 });
    QCOMPARE(clicked.size(), 0);
    dialog.hide();
    touch(below, { { 50, 20 } });
    QCOMPARE(clicked.size(), 1);
}

void TestPanelDialog::focusStaysInsideAndGoesBack()
{
    Screen screen;
    PanelDialog dialog(QString(), &screen.window);
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    auto *first = new QLineEdit;
    auto *second = new QLineEdit;
    layout->addWidget(first);
    layout->addWidget(second);
    dialog.setContent(content);
    dialog.open();
    QCOMPARE(screen.window.focusWidget(), &dialog);
    QWidgetList order;
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(screen.window.focusWidget(), Qt::Key_Tab);
        order += screen.window.focusWidget();
    }
    QCOMPARE(order, QWidgetList({ first, second, first }));
    QTest::keyClick(first, Qt::Key_Backtab);
    QCOMPARE(screen.window.focusWidget(), second);
    dialog.hide();
    QCOMPARE(screen.window.focusWidget(), &screen.field);
}

void TestPanelDialog::mayBeDeletedInItsSignal()
{
    Screen screen;
    auto *dialog = new PanelDialog(QString(), &screen.window);
    const QPointer<PanelDialog> alive(dialog);
    VexoPushButton *button = dialog->addButton(QStringLiteral("Yes"));
    connect(dialog, &PanelDialog::answered, dialog, [dialog] { delete dialog; });
    dialog->open();
    touch(button, { { 20, 20 } });
    QVERIFY(!alive);
}

void TestPanelDialog::deletesItselfWhenAskedFor()
{
    Screen screen;
    auto *dialog = new PanelDialog(QString(), &screen.window);
    const QPointer<PanelDialog> alive(dialog);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QSignalSpy answered(dialog, &PanelDialog::answered);
    dialog->open();
    QTest::keyClick(dialog, Qt::Key_Back);
    QCOMPARE(answered.size(), 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!alive);
}

void TestPanelDialog::boxFitsTheScreen_data()
{
    QTest::addColumn<int>("screen_px"); // 5 px/mm
    QTest::addColumn<int>("box_px");
    QTest::newRow("wide screen") << 800 << 450;
    QTest::newRow("narrow screen") << 300 << 270;
}

void TestPanelDialog::boxFitsTheScreen()
{
    QFETCH(int, screen_px);
    QFETCH(int, box_px);
    Screen screen;
    screen.window.resize(screen_px, 400);
    PanelDialog dialog(QStringLiteral("Restart?"), &screen.window);
    dialog.setExplanation(QStringLiteral("The device is not reached for about one minute."));
    for (const char *text : { "One", "Two", "Three" })
        dialog.addButton(QString::fromLatin1(text));
    dialog.open();
    const QWidget *box = dialog.childAt(dialog.rect().center());
    while (box->parentWidget() != &dialog)
        box = box->parentWidget();
    QCOMPARE(box->width(), box_px);
    QVERIFY(dialog.rect().contains(box->geometry()));
    QVERIFY(qAbs(box->geometry().center().y() - dialog.rect().center().y()) <= 1);
}

void TestPanelDialog::idleDialogPaintsNothing()
{
    Screen screen;
    PanelDialog dialog(QStringLiteral("Restart?"), &screen.window);
    dialog.open();
    QVERIFY(QTest::qWaitForWindowExposed(&screen.window));
    PaintCounter paints;
    paints.watch(&dialog);
    paints.take(&dialog);
    QCOMPARE(paints.take(&dialog), 0);
}

void TestPanelDialog::thatGoesIsRepaintedOnce()
{
    Screen screen;
    const QPointer<PanelDialog> dialog(new PanelDialog(QStringLiteral("Restart?"), &screen.window));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
    QVERIFY(QTest::qWaitForWindowExposed(&screen.window));
    PaintCounter paints;
    paints.watch(&screen.window);
    paints.take(&screen.window);
    dialog->close();
    QTRY_VERIFY(!dialog);
    QCOMPARE(paints.take(&screen.window), 1);
}

QTEST_MAIN(TestPanelDialog)
#include "tst_paneldialog.moc"
