// SPDX-License-Identifier: MIT
#include "support/testcase.h"
#include "support/touch.h"

#include <VexoCheckBox>
#include <VexoRadioButton>

using namespace vexo::hox::qt::ui;

/// VexoCheckBox and VexoRadioButton.
class TestVexoCheckBox : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void tellsATapFromASwipe_data();
    void tellsATapFromASwipe();
    void fingerThatRestsOnAMovingListTaps();
    void radioButtonsExcludeEachOther();
};

void TestVexoCheckBox::tellsATapFromASwipe_data()
{
    QTest::addColumn<Way>("way");
    QTest::addColumn<int>("delta"); // other than 8 for the check box alone
    QTest::addColumn<bool>("tap");
    QTest::newRow("8 px, far off") << Way{ { 1, 1 }, { -7, -7 } } << 8 << true;
    QTest::newRow("9 px right, back") << Way{ { 9, 9 }, { 18, 9 }, { 9, 9 } } << 8 << false;
    QTest::newRow("9 px up, back") << Way{ { 9, 9 }, { 9, 0 }, { 9, 9 } } << 8 << false;
    QTest::newRow("20 px of 20") << Way{ { 1, 1 }, { 21, 21 } } << 20 << true;
    QTest::newRow("21 px of 20") << Way{ { 1, 1 }, { 1, 22 } } << 20 << false;
}

void TestVexoCheckBox::tellsATapFromASwipe()
{
    QFETCH(Way, way);
    QFETCH(int, delta);
    QFETCH(bool, tap);
    VexoCheckBox box;
    VexoRadioButton radio;
    box.setMouseMoveDelta(delta);
    QVector<QAbstractButton *> buttons{ &box };
    if (delta == 8)
        buttons += &radio;
    for (QAbstractButton *button : qAsConst(buttons)) {
        QByteArray log;
        record(button, &log);
        connect(button, &QAbstractButton::pressed, button, [=] { QVERIFY(!button->isDown()); });
        touch(button, way);
        QCOMPARE(log, QByteArray(tap ? "pressed; toggled 1; clicked 1; " : "pressed; "));
        button->setChecked(false);
        touch(button); // a swipe has ended with its release
        QVERIFY(log.endsWith("clicked 1; "));
    }
}

void TestVexoCheckBox::fingerThatRestsOnAMovingListTaps()
{
    QWidget list;
    VexoCheckBox box(&list);
    finger(&box, QEvent::MouseButtonPress, QPoint(5, 5));
    box.move(0, 50);
    finger(&box, QEvent::MouseMove, QPoint(5, -45)); // the same place on the screen
    finger(&box, QEvent::MouseButtonRelease, QPoint(5, -45));
    QVERIFY(box.isChecked());
}

void TestVexoCheckBox::radioButtonsExcludeEachOther()
{
    QWidget list;
    VexoRadioButton first(&list);
    VexoRadioButton second(&list);
    first.setChecked(true);
    QByteArray log;
    record(&first, &log);
    record(&second, &log, "2 ");
    touch(&first); // stays chosen
    QCOMPARE(log, QByteArray("pressed; clicked 1; "));
    touch(&second);
    QVERIFY(log.endsWith("2 pressed; toggled 0; 2 toggled 1; 2 clicked 1; "));
}

QTEST_MAIN(TestVexoCheckBox)
#include "tst_vexocheckbox.moc"
