// SPDX-License-Identifier: MIT
#include "package/process.h"
#include "support/panelscale.h"
#include "support/testcase.h"

#include <ScalingInfo>
#include <ScreenDoctor>

#include <QMetaType>
#include <QTest>

#include <limits>

using namespace vexo::hox::qt::panel;

namespace {

using Faults = QVector<int>;

Faults faults(const QVector<ScreenFinding> &findings)
{
    Faults found;
    for (const ScreenFinding &finding : findings)
        found += finding.fault;
    return found;
}

} // namespace

class TestScreenDoctor : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void namesWhatLooksWrong_data();
    void namesWhatLooksWrong();
    void namesTheCureOfThePlatform_data();
    void namesTheCureOfThePlatform();
    void examinesTheScaleInUse();
    void reportTellsEachCureOnce();
    void toolTellsByItsExitCode_data();
    void toolTellsByItsExitCode();
};

void TestScreenDoctor::namesWhatLooksWrong_data()
{
    QTest::addColumn<QSize>("px");
    QTest::addColumn<QSizeF>("mm");
    QTest::addColumn<Faults>("expected");
    QTest::addColumn<QString>("words");
    const auto row = [](const char *name, const QSize &px, const QSizeF &mm, const Faults &expected,
                         const char *words) {
        QTest::newRow(name) << px << mm << expected << QString::fromLatin1(words);
    };
    using Fault = ScreenFinding;
    const double nan = std::numeric_limits<double>::quiet_NaN();
    row("7 inch", { 1280, 800 }, { 151, 94.4 }, {}, "");
    row("upright", { 480, 800 }, { 56, 94 }, {}, "");
    row("4 % off square", { 1000, 1040 }, { 100, 100 }, {}, "");
    row("100 dpi", { 800, 600 }, { 203.2, 152.4 }, { Fault::InventedSize }, "exactly 100 dpi");
    row("96 dpi in whole mm", { 1024, 600 }, { 271, 159 }, { Fault::InventedSize }, "96 dpi");
    row("100 dpi only across", { 800, 600 }, { 203.2, 154 }, {}, "");
    row("pixels as mm", { 1280, 800 }, { 1280, 800 }, { Fault::PixelsAsMillimetres }, "1 x 1");
    row("6 % off square", { 1000, 1060 }, { 100, 100 }, { Fault::UnevenPixels }, "0.943");
    row("swapped", { 1280, 800 }, { 100, 160 }, { Fault::UnevenPixels }, "swapped");
    row("centimetres", { 1280, 800 }, { 16, 10 }, { Fault::UnlikelyDensity }, "80 x 80");
    row("coarse and uneven", { 150, 100 }, { 100, 100 },
        { Fault::PixelsAsMillimetres, Fault::UnevenPixels }, "1.5 x 1");
    row("no mm", { 1280, 800 }, { 0, 0 }, { Fault::NoSize }, "millimetres");
    row("no height", { 1280, 800 }, { 160, 0 }, { Fault::NoSize }, "millimetres");
    row("nan", { 1280, 800 }, { nan, nan }, { Fault::NoSize }, "millimetres");
    row("no px", { 0, 0 }, { 160, 100 }, { Fault::NoSize }, "no screen");
}

void TestScreenDoctor::namesWhatLooksWrong()
{
    QFETCH(QSize, px);
    QFETCH(QSizeF, mm);
    QFETCH(Faults, expected);
    QFETCH(QString, words);
    const auto findings = ScreenDoctor::findings({ QStringLiteral("eglfs"), px, mm });
    QCOMPARE(faults(findings), expected);
    const QString report = ScreenDoctor::report(findings);
    QVERIFY2(report.contains(words), qPrintable(report));
}

void TestScreenDoctor::namesTheCureOfThePlatform_data()
{
    QTest::addColumn<QString>("cure");
    QTest::newRow("eglfs") << QStringLiteral("QT_QPA_EGLFS_PHYSICAL_WIDTH");
    QTest::newRow("linuxfb") << QStringLiteral("linuxfb:mmsize=");
    QTest::newRow("wayland-egl") << QStringLiteral("compositor");
    QTest::newRow("xcb") << QStringLiteral("DisplaySize");
    QTest::newRow("other") << QStringLiteral("Panel::setUp()");
}

void TestScreenDoctor::namesTheCureOfThePlatform()
{
    QFETCH(QString, cure);
    const QString platform = QString::fromLatin1(QTest::currentDataTag());
    const auto findings = ScreenDoctor::findings({ platform, { 800, 480 }, { 800, 480 } });
    QCOMPARE(findings.size(), 1);
    QVERIFY2(findings.first().cure.contains(cure), qPrintable(findings.first().cure));
    QVERIFY(findings.first().cure.contains(QStringLiteral("PanelOptions::mm")));
}

void TestScreenDoctor::examinesTheScaleInUse()
{
    {
        const PanelScale scale(10, 10);
        QCOMPARE(faults(ScreenDoctor::findings()), Faults());
    }
    const PanelScale scale(1, 1);
    QCOMPARE(faults(ScreenDoctor::findings()), Faults{ ScreenFinding::PixelsAsMillimetres });
}

void TestScreenDoctor::reportTellsEachCureOnce()
{
    const auto findings = ScreenDoctor::findings({ QString(), { 150, 100 }, { 100, 100 } });
    QCOMPARE(findings.size(), 2);
    QCOMPARE(ScreenDoctor::report(findings).count(QStringLiteral("PanelOptions::mm")), 1);
    QCOMPARE(ScreenDoctor::report({}), QString());
}

void TestScreenDoctor::toolTellsByItsExitCode_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exit_code");
    QTest::addColumn<QString>("words");
    const auto row = [](const char *arguments, int exit_code, const char *words) {
        QTest::newRow(arguments) << QString::fromLatin1(arguments).split(
            QLatin1Char(' '), Qt::SkipEmptyParts)
                                 << exit_code << QString::fromLatin1(words);
    };
    row("", 1, "exactly 100 dpi"); // as this platform always tells
    row("--panel 1280x800@160x100", 0, "1280 x 800 px on 160 x 100 mm, 8 x 8 px/mm\n");
    row("--panel 1280x800@0x0", 1, "PanelOptions::mm");
    row("--panel 1280", 2, "hoxqui-panel: --panel 1280: expected");
    row("--bogus", 2, "hoxqui-panel: ");
    row("foo", 2, "hoxqui-panel: unexpected argument foo");
    row("-platform xcb", 1, "There is no screen");
}

void TestScreenDoctor::toolTellsByItsExitCode()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exit_code);
    QFETCH(QString, words);
    qunsetenv("DISPLAY");
    const Finished result = run(QStringLiteral(HOXQ_PANEL_TOOL), arguments);
    QVERIFY2(result.exit_code == exit_code, qPrintable(result.output));
    QVERIFY2(result.output.contains(words), qPrintable(result.output));
}

QTEST_MAIN(TestScreenDoctor)
#include "tst_screendoctor.moc"
