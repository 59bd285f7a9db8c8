// SPDX-License-Identifier: MIT
#include "support/iconfiles.h"
#include "support/panelscale.h"
#include "support/testcase.h"

#include <VexoLineSpacer>

using namespace vexo::hox::qt::ui;

class TestVexoLineSpacer : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void drawsBothLinesSideBySide_data();
    void drawsBothLinesSideBySide();
};

void TestVexoLineSpacer::drawsBothLinesSideBySide_data()
{
    QTest::addColumn<bool>("vertical");
    QTest::addColumn<QList<double>>("mm"); // dark and light line
    QTest::addColumn<QList<int>>("px"); // on a panel of 10 x 20 px/mm
    using Mm = QList<double>;
    using Px = QList<int>;
    QTest::newRow("along x, cut") << true << Mm{ 0.39, 0.5 } << Px{ 3, 5 };
    QTest::newRow("along y, odd and even") << false << Mm{ 0.15, 0.3 } << Px{ 3, 6 };
    QTest::newRow("at least a pixel") << true << Mm{ 0.01, qQNaN() } << Px{ 1, 1 };
    QTest::newRow("covers all") << true << Mm{ 1e300, qInf() } << Px{ 40, 0 };
}

void TestVexoLineSpacer::drawsBothLinesSideBySide()
{
    QFETCH(bool, vertical);
    QFETCH(QList<double>, mm);
    QFETCH(QList<int>, px);
    const PanelScale scale(10, 20);
    VexoLineSpacer spacer;
    spacer.resize(40, 40);
    spacer.setDarkColor(Qt::red);
    spacer.setLightColor(Qt::blue);
    spacer.setDarkLineThickness(mm[0]);
    spacer.setLightLineThickness(mm[1]);
    spacer.setIsVerticalSpacer(vertical);
    const QImage image = spacer.grab().toImage();
    const auto lineAt = [vertical](int from, int thickness) {
        return vertical ? QRect(from, 0, thickness, 40) : QRect(0, from, 40, thickness);
    };
    QCOMPARE(boxOf(image, Qt::red), lineAt(0, px[0]));
    QCOMPARE(boxOf(image, Qt::blue), px[1] > 0 ? lineAt(px[0], px[1]) : QRect());
}

QTEST_MAIN(TestVexoLineSpacer)
#include "tst_vexolinespacer.moc"
