// SPDX-License-Identifier: MIT
#include "support/panelscale.h"
#include "support/testcase.h"

#include <VexoHorizontalLabelWidget>

using namespace vexo::hox::qt::ui;

class TestVexoHorizontalLabelWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void columnsStandSideBySide();
    void colorsAreAStylesheet();
};

void TestVexoHorizontalLabelWidget::columnsStandSideBySide()
{
    const PanelScale scale(10, 20);
    VexoHorizontalLabelWidget row;
    QCOMPARE(row.sizeHint(), QSize(0, 200));
    row.setLeftLabelMmWidth(3.09);
    row.setRightLabelMmWidth(4.09);
    row.setMmHeight(1.99);
    row.setMmIndent(0.59);
    row.grab(); // lays it out
    QCOMPARE(row.findChild<QLabel *>("leftLabel")->geometry(), QRect(0, 0, 30, 39));
    QCOMPARE(row.findChild<QLabel *>("rightLabel")->geometry(), QRect(30, 0, 40, 39));
    for (const QLabel *label : { row.leftLabel(), row.rightLabel() }) {
        QCOMPARE(label->font().pixelSize(), 84); // 12 pt
        QCOMPARE(label->indent(), 5);
    }
}

void TestVexoHorizontalLabelWidget::colorsAreAStylesheet()
{
    VexoHorizontalLabelWidget row;
    row.setTextColor(QColor(1, 2, 3, 4));
    for (QLabel *label : { row.leftLabel(), row.rightLabel() }) {
        QCOMPARE(label->styleSheet(), "QLabel {color: rgb(1, 2, 3);background: rgb(80, 80, 80);}");
        label->setStyleSheet(QString());
        row.setTextColor(QColor(1, 2, 3)); // as before, but not on the label
        QVERIFY(!label->styleSheet().isEmpty());
    }
}

QTEST_MAIN(TestVexoHorizontalLabelWidget)
#include "tst_vexohorizontallabelwidget.moc"
