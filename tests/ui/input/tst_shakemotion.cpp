// SPDX-License-Identifier: MIT
#include "support/testcase.h"
#include "ui/input/shakemotion_p.h"

#include <QTest>
#include <QVector>

#include <cmath>

using vexo::hox::qt::ui::ShakeMotion;

using Numbers = QVector<int>;

class TestShakeMotion : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void swingsAndSlowsDown_data();
    void swingsAndSlowsDown();
    void longestShake();
};

void TestShakeMotion::swingsAndSlowsDown_data()
{
    QTest::addColumn<uint>("ms");
    QTest::addColumn<uint>("oscillations");
    QTest::addColumn<uint>("px");
    QTest::addColumn<Numbers>("delays");
    QTest::addColumn<Numbers>("offsets");
    QTest::newRow("usual") << 500U << 5U << 10U << Numbers{ 50, 50, 75, 100, 125, 150 }
                           << Numbers{ -10, 9, -8, 5, -3 };
    QTest::newRow("least, without a step") << 0U << 0U << 0U << Numbers{ 83 } << Numbers();
    QTest::newRow("a single step") << 200U << 3U << 5U << Numbers{ 83, 83 } << Numbers{ -5 };
    QTest::newRow("always moves") << 600U << 3U << 1U << Numbers{ 83, 83, 166, 249 }
                                  << Numbers{ -1, 1, -1 };
}

void TestShakeMotion::swingsAndSlowsDown()
{
    QFETCH(uint, ms);
    QFETCH(uint, oscillations);
    QFETCH(uint, px);
    ShakeMotion motion;
    QVERIFY(!motion.isRunning());
    motion.start(ms, oscillations, px);
    Numbers delays{ motion.delay() };
    Numbers offsets;
    QVERIFY(motion.isRunning());
    while (motion.step()) {
        delays += motion.delay();
        offsets += motion.offset();
    }
    QTEST(delays, "delays");
    QTEST(offsets, "offsets");
    QVERIFY(!motion.isRunning());
    QCOMPARE(motion.offset(), 0);
    QVERIFY(!motion.step());
}

void TestShakeMotion::longestShake()
{
    ShakeMotion motion;
    motion.start(5000, 50, 50); // as 2000, 20, 20
    QCOMPARE(motion.delay(), 12);
    int steps = 0;
    while (motion.step()) {
        ++steps;
        QCOMPARE(motion.offset() < 0, steps % 2 == 1);
        QVERIFY(std::abs(motion.offset()) <= 20);
    }
    QCOMPARE(steps, 80);
}

QTEST_MAIN(TestShakeMotion)
#include "tst_shakemotion.moc"
