// SPDX-License-Identifier: MIT
#include "support/panelscale.h"
#include "support/testcase.h"
#include "ui/foundation/panelfont_p.h"
#include "ui/foundation/pixels_p.h"

#include <limits>

using namespace vexo::hox::qt::ui;

class TestPixels : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cutsTowardZero_data();
    void cutsTowardZero();
    void convertsEachAxis();
    void panelFontIsMeasuredInPoints();

private:
    const PanelScale m_scale{ 10, 20 };
};

void TestPixels::cutsTowardZero_data()
{
    QTest::addColumn<double>("px");
    QTest::addColumn<int>("whole");
    const double infinity = std::numeric_limits<double>::infinity();
    QTest::newRow("cut, not rounded") << 12.9 << 12;
    QTest::newRow("toward zero") << -12.9 << -12;
    QTest::newRow("largest") << 32767.9 << 32767;
    QTest::newRow("beyond the largest") << 2147483648.0 << 32767;
    QTest::newRow("beyond the lowest") << -3e9 << -32767;
    QTest::newRow("infinity") << infinity << 32767;
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 0;
}

void TestPixels::cutsTowardZero()
{
    QFETCH(double, px);
    QTEST(truncated(px), "whole");
}

void TestPixels::convertsEachAxis()
{
    const ScalingInfo &scaling = *ScalingInfo::inst();
    QCOMPARE(pxX(scaling, 0.39), 3);
    QCOMPARE(pxY(scaling, 0.39), 7);
    QCOMPARE(pxSize(scaling, QSizeF(1.29, 1.29)), QSize(12, 25));
    QCOMPARE(pxPt(scaling, 7), 49); // 49.39
    QCOMPARE(pxX(scaling, 1e300), 32767);
    QCOMPARE(finitePxSize(scaling, QSizeF(-1e9, 1.29)), QSizeF(-32767, 25.8F));
}

void TestPixels::panelFontIsMeasuredInPoints()
{
    QFont font = panelFont(9, QFont::Medium);
    QCOMPARE(font.pixelSize(), 63); // 63.5
    QCOMPARE(font.weight(), int(QFont::Medium));
    QCOMPARE(font.family(), QFont().family());
    setPtSize(font, 0.1); // 0.7 px; a warning of the toolkit would fail the test
    QCOMPARE(font.pixelSize(), 63);
}

QTEST_MAIN(TestPixels)
#include "tst_pixels.moc"
