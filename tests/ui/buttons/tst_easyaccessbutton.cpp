// SPDX-License-Identifier: MIT
#include "support/testcase.h"

#include <EasyAccessButton>

#include <QVector>

#include <limits>

using vexo::hox::qt::ui::EasyAccessButton;

class TestEasyAccessButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void clicksWithinTheMargin_data();
    void clicksWithinTheMargin();
    void releaseForgetsTheMoves();
    void switchedOffNeverClicks();
    void marginHoldsAtTheEndsOfInt();
};

void TestEasyAccessButton::clicksWithinTheMargin_data()
{
    QTest::addColumn<QVector<QPoint>>("moves"); // on a button of 100 x 50 px, margin 20 px
    QTest::addColumn<bool>("click");
    QTest::newRow("no move") << QVector<QPoint>{} << false;
    QTest::newRow("inside") << QVector<QPoint>{ { 50, 25 } } << false;
    QTest::newRow("on the far edges") << QVector<QPoint>{ { 100, 50 } } << false;
    QTest::newRow("right of it") << QVector<QPoint>{ { 101, 25 } } << true;
    QTest::newRow("end of the margin, right") << QVector<QPoint>{ { 120, 25 } } << true;
    QTest::newRow("beyond, right") << QVector<QPoint>{ { 121, 25 } } << false;
    QTest::newRow("end of the margin, left") << QVector<QPoint>{ { -20, 25 } } << true;
    QTest::newRow("beyond, left") << QVector<QPoint>{ { -21, 25 } } << false;
    QTest::newRow("end of the margin, above") << QVector<QPoint>{ { 50, -20 } } << true;
    QTest::newRow("beyond, above") << QVector<QPoint>{ { 50, -21 } } << false;
    QTest::newRow("end of the margin, below") << QVector<QPoint>{ { 50, 70 } } << true;
    QTest::newRow("beyond, below") << QVector<QPoint>{ { 50, 71 } } << false;
    QTest::newRow("off and back nearby")
        << QVector<QPoint>{ { 110, 25 }, { 130, 25 }, { 110, 25 } } << true;
    // Released inside, the toolkit itself clicks.
    QTest::newRow("nearby and back inside") << QVector<QPoint>{ { 110, 25 }, { 90, 25 } } << false;
}

void TestEasyAccessButton::clicksWithinTheMargin()
{
    QFETCH(QVector<QPoint>, moves);
    EasyAccessButton button;
    for (const QPoint &move : qAsConst(moves))
        button.mouseWasMoved(move.x(), move.y(), 100, 50);
    QTEST(button.mouseWasReleased(), "click");
}

void TestEasyAccessButton::releaseForgetsTheMoves()
{
    EasyAccessButton button;
    button.setEasyPress(true, 5);
    button.mouseWasMoved(105, 25, 100, 50);
    QVERIFY(button.mouseWasReleased());
    QVERIFY(!button.mouseWasReleased());
    button.mouseWasMoved(106, 25, 100, 50);
    QVERIFY(!button.mouseWasReleased());
}

void TestEasyAccessButton::switchedOffNeverClicks()
{
    EasyAccessButton button;
    button.mouseWasMoved(110, 25, 100, 50);
    button.setEasyPress(false, 20);
    QVERIFY(!button.mouseWasReleased());
    button.mouseWasMoved(110, 25, 100, 50);
    button.setEasyPress(true, 20);
    QVERIFY(!button.mouseWasReleased());
}

void TestEasyAccessButton::marginHoldsAtTheEndsOfInt()
{
    const int largest = std::numeric_limits<int>::max();
    EasyAccessButton button;
    button.setEasyPress(true, largest);
    button.mouseWasMoved(largest, -largest, 100, 50);
    QVERIFY(button.mouseWasReleased());
    button.setEasyPress(true, -largest);
    button.mouseWasMoved(101, 25, 100, 50);
    QVERIFY(!button.mouseWasReleased());
}

QTEST_MAIN(TestEasyAccessButton)
#include "tst_easyaccessbutton.moc"
