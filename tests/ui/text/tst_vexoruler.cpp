// SPDX-License-Identifier: MIT
#include "support/panelscale.h"
#include "support/testcase.h"

#include <VexoRuler>

using namespace vexo::hox::qt::ui;

namespace {

/// The colours of the last column: "w" white, "g" grey (C6), "r" red, "." nothing drawn.
QByteArray rowsOf(VexoRuler *ruler, int height)
{
    ruler->setFixedSize(30, height);
    QImage image(30, qMax(1, height), QImage::Format_RGB32);
    image.fill(Qt::green);
    ruler->render(&image, QPoint(), QRegion(), {});
    const QHash<QRgb, char> names{ { 0xffffffff, 'w' }, { 0xffc8c8c8, 'g' }, { 0xffff0000, 'r' },
        { 0xff00ff00, '.' } };
    QByteArray rows;
    for (int y = 0; y < height; ++y)
        rows += names.value(image.pixel(29, y), '?');
    return rows;
}

} // namespace

class TestVexoRuler : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void styleIsAStackOfLines();
    void whiteSpaceIsInMillimetres_data();
    void whiteSpaceIsInMillimetres();
    void changeWaitsForStyle();
};

void TestVexoRuler::styleIsAStackOfLines()
{
    const QByteArrayList stacks{ "w", "gw", "w", "wwwwwwwwwwwwwwwwwwwwggw", "w", "g", "g", "gww",
        "w", "gw", "w", "g", "w", "g", "..", "" };
    for (int style = -1; style < stacks.size(); ++style) {
        const QByteArray rows = stacks.value(style);
        VexoRuler ruler(nullptr, VexoRuler::VexoRulerStyle(style));
        QCOMPARE(ruler.maximumHeight(), rows.size());
        QCOMPARE(rowsOf(&ruler, rows.size()), rows);
    }
    QVERIFY(QMetaType::type("VexoRulerStyle") != QMetaType::UnknownType);
}

void TestVexoRuler::whiteSpaceIsInMillimetres_data()
{
    QTest::addColumn<float>("mm");
    QTest::addColumn<int>("px"); // on a panel of 10 x 20 px/mm
    QTest::newRow("cut") << 0.39F << 7;
    QTest::newRow("too little") << 0.01F << 0;
    QTest::newRow("no number") << float(qQNaN()) << 0;
    QTest::newRow("endless") << float(qInf()) << 32765;
}

void TestVexoRuler::whiteSpaceIsInMillimetres()
{
    QFETCH(float, mm);
    QFETCH(int, px);
    const PanelScale scale(10, 20);
    VexoRuler ruler(nullptr, VexoRuler::MainMiddle, mm);
    QCOMPARE(ruler.maximumHeight(), px + 2);
    ruler.setWhiteSpaceAbove(0.1F); // below what is there
    QCOMPARE(rowsOf(&ruler, 12), (QByteArray(qMin(px, 12), 'w') + "gwww........").left(12));
}

void TestVexoRuler::changeWaitsForStyle()
{
    VexoRuler ruler;
    ruler.setFirstLineColor(Qt::red);
    QCOMPARE(rowsOf(&ruler, 2), QByteArray("gw"));
    ruler.setRulerStyle(VexoRuler::MainUnderCentralFunctionButton);
    QCOMPARE(ruler.height(), 2);
    QCOMPARE(rowsOf(&ruler, 4), QByteArray("grr."));
}

QTEST_MAIN(TestVexoRuler)
#include "tst_vexoruler.moc"
