// SPDX-License-Identifier: MIT
#include "support/panelscale.h"
#include "support/testcase.h"

#include <VexoTextEnumeration>

using namespace vexo::hox::qt::ui;

class TestVexoTextEnumeration : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void columnsStandSideBySide();
};

void TestVexoTextEnumeration::columnsStandSideBySide()
{
    const PanelScale scale(10, 20);
    VexoTextEnumeration item;
    item.resize(500, item.height());
    item.setText(QString("ten words ").repeated(1000), -1);
    item.grab(); // lays it out
    const auto labels = item.findChildren<QLabel *>();
    const QLabel *number = labels.value(0);
    const QLabel *text = labels.value(1);
    const auto placeOf = [&item](const QLabel *label) {
        return QRect(label->mapTo(&item, QPoint(0, 0)), label->size());
    };
    QCOMPARE(item.minimumHeight(), 290);
    QCOMPARE(placeOf(number), QRect(30, 59, 30, 231));
    QCOMPARE(placeOf(text), QRect(90, 65, 380, 225));
    QCOMPARE(number->text(), "-1.");
    QCOMPARE(number->font().pixelSize(), 70); // 10 pt
    QCOMPARE(text->font().pixelSize(), 63); // 9 pt
    QCOMPARE(text->palette().color(text->foregroundRole()), QColor(60, 60, 60));
}

QTEST_MAIN(TestVexoTextEnumeration)
#include "tst_vexotextenumeration.moc"
