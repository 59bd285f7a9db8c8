// SPDX-License-Identifier: MIT
#include "support/panelscale.h"
#include "support/testcase.h"

#include <ScalingInfo>

#include <limits>
#include <stdexcept>

using vexo::hox::qt::ui::ScalingInfo;

class TestScalingInfo : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void readsThePrimaryScreenOnce();
    void convertsEachAxisAtItsOwnDensity();
    void stretchesFontsByTheShapeOfAPixel();
    void undefinedSizeIsRefusedAndTheScaleStays_data();
    void undefinedSizeIsRefusedAndTheScaleStays();
    void recalculatesFromBothStoredSizes();
    void tellsDesktopProcessors();
};

void TestScalingInfo::readsThePrimaryScreenOnce()
{
    ScalingInfo *scaling = ScalingInfo::inst();
    QCOMPARE(scaling->m_pixels, QSize(800, 600));
    QCOMPARE(scaling->m_size_mm, QSizeF(203.2, 152.4));
    const PanelScale scale(5, 6);
    QCOMPARE(ScalingInfo::inst(), scaling);
    QCOMPARE(scaling->mm2px_X(10), 50.f);
}

void TestScalingInfo::convertsEachAxisAtItsOwnDensity()
{
    const PanelScale scale(5, 6);
    const ScalingInfo *scaling = ScalingInfo::inst();
    QCOMPARE(scaling->mm2px_X(10.5f), 52.5f);
    QCOMPARE(scaling->mm2px_Y(10.5f), 63.f);
    QCOMPARE(scaling->mm2px(QSizeF(2, 3)), QSizeF(10, 18));
    QCOMPARE(scaling->px2mm_X(50), 10.f);
    QCOMPARE(scaling->px2mm_Y(60), 10.f);
    QCOMPARE(scaling->pt2px_Y(72), 152.4f); // 25.4 mm
    QCOMPARE(scaling->m_xy_ratio, 1.2f);
}

void TestScalingInfo::stretchesFontsByTheShapeOfAPixel()
{
    const QMap<double, int> percents{ { 5, 100 }, { 6, 120 }, { 5.48, 110 }, { 5.47, 109 } };
    for (auto it = percents.begin(); it != percents.end(); ++it) {
        const PanelScale scale(5, it.key());
        QCOMPARE(ScalingInfo::inst()->fontStretch(), it.value());
    }
}

void TestScalingInfo::undefinedSizeIsRefusedAndTheScaleStays_data()
{
    QTest::addColumn<QSize>("px");
    QTest::addColumn<QSizeF>("mm");
    const QSize px(1000, 1000);
    const QSizeF mm(100, 100);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("no width in px") << QSize(0, 600) << mm;
    QTest::newRow("negative height in px") << QSize(1000, -1) << mm;
    QTest::newRow("no width in mm") << px << QSizeF(0, 100);
    QTest::newRow("negative height in mm") << px << QSizeF(100, -0.5);
    QTest::newRow("width in mm not a number") << px << QSizeF(nan, 100);
}

void TestScalingInfo::undefinedSizeIsRefusedAndTheScaleStays()
{
    QFETCH(QSize, px);
    QFETCH(QSizeF, mm);
    const PanelScale scale(5, 6);
    ScalingInfo *scaling = ScalingInfo::inst();
    scaling->m_size_mm = mm;
    try {
        scaling->setPixels(px);
        QFAIL("an undefined size was taken");
    } catch (const std::range_error &error) {
        QCOMPARE(error.what(), "Display size not defined!");
    }
    QCOMPARE(scaling->m_pixels, px);
    QCOMPARE(scaling->mm2px(QSizeF(10, 10)), QSizeF(50, 60));
    QCOMPARE(scaling->m_xy_ratio, 1.2f);
}

void TestScalingInfo::recalculatesFromBothStoredSizes()
{
    const PanelScale scale(5, 6);
    ScalingInfo *scaling = ScalingInfo::inst();
    QVERIFY_EXCEPTION_THROWN(scaling->setSizeMM(0, 100), std::range_error);
    QVERIFY_EXCEPTION_THROWN(scaling->setPixels(1000, 600), std::range_error);
    scaling->setSizeMM(200, 100);
    QCOMPARE(scaling->mm2px(QSizeF(1, 1)), QSizeF(5, 6));
    scaling->setPixels(400, 300);
    QCOMPARE(scaling->mm2px(QSizeF(1, 1)), QSizeF(2, 3));
}

void TestScalingInfo::tellsDesktopProcessors()
{
    for (const char *desktop : { "x86_64", "i386" })
        QVERIFY(ScalingInfo::isDesktop(QLatin1String(desktop)));
    for (const char *other : { "arm64", "arm", "X86_64" })
        QVERIFY(!ScalingInfo::isDesktop(QLatin1String(other)));
    QCOMPARE(ScalingInfo::isDesktop(), ScalingInfo::isDesktop(QSysInfo::currentCpuArchitecture()));
}

int main(int argc, char **argv)
{
    // Before there is a screen the call fails, and it succeeds at the next try.
    try {
        ScalingInfo::inst();
        return EXIT_FAILURE;
    } catch (const std::range_error &) {
    }
    QGuiApplication application(argc, argv);
    TestScalingInfo test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_scalinginfo.moc"
