// SPDX-License-Identifier: MIT
#include "support/panelscale.h"
#include "support/testcase.h"
#include "support/touch.h"

#include <TapDistance>
#include <VexoCheckBox>
#include <VexoFunctionButton>

#include <limits>

using namespace vexo::hox::qt::ui;

class TestTapDistance : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void tapMayWanderTheSameMillimetres_data();
    void tapMayWanderTheSameMillimetres();
    void givenPixelsCount();
    void noDistanceBringsThePixelsBack();
};

void TestTapDistance::cleanup()
{
    TapDistance::setMm(0);
    TestCase::cleanup();
}

void TestTapDistance::tapMayWanderTheSameMillimetres_data()
{
    QTest::addColumn<double>("tap_mm");
    QTest::addColumn<QPoint>("way"); // px, on a panel of 4 x 8 px/mm
    QTest::addColumn<int>("row_clicks");
    QTest::addColumn<int>("box_clicks");
    QTest::newRow("pixels of both") << 0.0 << QPoint(8, 8) << 1 << 1;
    QTest::newRow("pixels of a row") << 0.0 << QPoint(10, 10) << 1 << 0;
    QTest::newRow("beyond the pixels") << 0.0 << QPoint(0, 11) << 0 << 0;
    QTest::newRow("5 mm") << 5.0 << QPoint(20, 40) << 1 << 1;
    QTest::newRow("beyond 5 mm across") << 5.0 << QPoint(21, 0) << 0 << 0;
    QTest::newRow("beyond 5 mm along") << 5.0 << QPoint(0, 41) << 0 << 0;
}

void TestTapDistance::tapMayWanderTheSameMillimetres()
{
    QFETCH(double, tap_mm);
    QFETCH(QPoint, way);
    const PanelScale scale(4, 8);
    TapDistance::setMm(tap_mm);
    VexoFunctionButton row(nullptr, VexoFunctionButton::ActionType);
    VexoCheckBox box;
    TapDistance::setMm(50); // too late for them
    const auto clicksOf = [&](QAbstractButton *button) {
        const QSignalSpy clicked(button, &QAbstractButton::clicked);
        touch(button, { { 20, 15 }, QPoint(20, 15) + way, { 20, 15 } });
        return clicked.count();
    };
    QTEST(clicksOf(&row), "row_clicks");
    QTEST(clicksOf(&box), "box_clicks");
}

void TestTapDistance::givenPixelsCount()
{
    TapDistance::setMm(5);
    VexoFunctionButton row(nullptr, VexoFunctionButton::ActionType);
    const QSignalSpy clicked(&row, &QAbstractButton::clicked);
    row.setMouseMoveDelta(3);
    touch(&row, { { 20, 15 }, { 20, 18 } });
    touch(&row, { { 20, 15 }, { 20, 19 } });
    QCOMPARE(clicked.count(), 1);
}

void TestTapDistance::noDistanceBringsThePixelsBack()
{
    for (const double none : { 0.0, -1.0, std::numeric_limits<double>::quiet_NaN() }) {
        TapDistance::setMm(5);
        TapDistance::setMm(none);
        QCOMPARE(TapDistance::mm(), 0.0);
    }
}

QTEST_MAIN(TestTapDistance)
#include "tst_tapdistance.moc"
