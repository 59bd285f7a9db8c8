#include "support/testcase.h"
#include "ui/buttons/swipeguard_p.h"

#include <QTest>
#include <QVector>

using vexo::hox::qt::ui::SwipeGuard;

class TestSwipeGuard : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void tellsATapFromASwipe_data();
    void tellsATapFromASwipe();
    void eachPressStartsAnew();
};

void TestSwipeGuard::tellsATapFromASwipe_data()
{
    QTest::addColumn<QVector<QPoint>>("moves");
    QTest::addColumn<bool>("tap");
    QTest::newRow("no move") << QVector<QPoint>{} << true;
    QTest::newRow("threshold in x and y") << QVector<QPoint>{ { 108, 208 } } << true;
    QTest::newRow("beyond to the right") << QVector<QPoint>{ { 109, 200 } } << false;
    QTest::newRow("beyond to the left") << QVector<QPoint>{ { 91, 200 } } << false;
    QTest::newRow("beyond downward") << QVector<QPoint>{ { 100, 209 } } << false;
    QTest::newRow("beyond upward") << QVector<QPoint>{ { 100, 191 } } << false;
    QTest::newRow("beyond and back") << QVector<QPoint>{ { 100, 209 }, { 100, 200 } } << false;
}

void TestSwipeGuard::tellsATapFromASwipe()
{
    QFETCH(QVector<QPoint>, moves);
    SwipeGuard guard(8);
    guard.press(QPoint(100, 200));
    for (const QPoint &move : qAsConst(moves))
        guard.move(move);
    QTEST(guard.release(), "tap");
}

void TestSwipeGuard::eachPressStartsAnew()
{
    SwipeGuard guard(8);
    guard.move(QPoint(50, 50)); // hovers, not pressed
    guard.press(QPoint(0, 0));
    QVERIFY(guard.isPressed());
    guard.move(QPoint(50, 50));
    QVERIFY(!guard.release());
    QVERIFY(!guard.isPressed());
    guard.setThreshold(20);
    guard.press(QPoint(50, 50));
    guard.move(QPoint(50, 70));
    QVERIFY(guard.release(QPoint(-5000, 9000)));
}

QTEST_MAIN(TestSwipeGuard)
#include "tst_swipeguard.moc"
