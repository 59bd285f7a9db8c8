// SPDX-License-Identifier: MIT
#include "support/testcase.h"
#include "ui/input/cursorblink_p.h"

#include <QSignalSpy>
#include <QTest>
#include <QWidget>

using vexo::hox::qt::ui::CursorBlink;

class TestCursorBlink : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hiddenCursorWakesNobody();
};

void TestCursorBlink::hiddenCursorWakesNobody()
{
    QWidget window;
    QWidget field(&window);
    CursorBlink blink(&field);
    blink.setInterval(1);
    const QSignalSpy ticks(&blink, &QTimer::timeout);
    blink.setBlinking(true);
    QTRY_VERIFY(!blink.isActive());
    QCOMPARE(ticks.count(), 0);
    window.show();
    QTRY_VERIFY(ticks.count() > 2);
    window.hide();
    QVERIFY(!blink.isActive());
    window.show();
    QVERIFY(blink.isActive());
    blink.setBlinking(false);
    window.hide();
    window.show();
    QVERIFY(!blink.isActive());
}

QTEST_MAIN(TestCursorBlink)
#include "tst_cursorblink.moc"
