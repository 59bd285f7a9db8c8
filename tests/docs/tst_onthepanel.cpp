// SPDX-License-Identifier: MIT
#include "support/testcase.h"

#include <VexoFunctionButton>
#include <VexoPushButton>

#include <QWindow>

using namespace vexo::hox::qt::ui;

namespace {

/// A row and two buttons that two readers and two fingers touch.
struct Screen : QWidget
{
    Screen()
    {
        resize(800, 480);
        row.setGeometry(0, 0, 800, 49);
        button.setGeometry(0, 100, 200, 60);
        other.setGeometry(300, 100, 200, 60);
        show();
        is_exposed = QTest::qWaitForWindowExposed(this);
    }

    QTest::QTouchEventSequence touch(QTouchDevice *device)
    {
        return QTest::touchEvent(this, device);
    }
    void press(QTouchDevice *device, const QPoint &px) { touch(device).press(0, px, this); }
    void release(QTouchDevice *device, const QPoint &px) { touch(device).release(0, px, this); }
    void pressMouse(const QPoint &px)
    {
        QTest::mousePress(windowHandle(), Qt::LeftButton, Qt::NoModifier, px);
    }
    void releaseMouse(const QPoint &px)
    {
        QTest::mouseRelease(windowHandle(), Qt::LeftButton, Qt::NoModifier, px);
    }

    QTouchDevice *const first = QTest::createTouchDevice();
    QTouchDevice *const second = QTest::createTouchDevice();
    VexoFunctionButton row{ this };
    VexoPushButton button{ this };
    VexoPushButton other{ this };
    bool is_exposed = false;
};

} // namespace

/// What docs/on-the-panel.md says of touches.
class TestOnThePanel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void touchOfTwoReadersCountsOnce_data();
    void touchOfTwoReadersCountsOnce();
    void secondFingerDoesNothing_data();
    void secondFingerDoesNothing();
};

void TestOnThePanel::touchOfTwoReadersCountsOnce_data()
{
    QTest::addColumn<int>("y");
    QTest::newRow("row") << 25;
    QTest::newRow("button") << 130;
}

// At places of their own, so that none is the bounce of the one before.
void TestOnThePanel::touchOfTwoReadersCountsOnce()
{
    QFETCH(int, y);
    Screen screen;
    QVERIFY(screen.is_exposed);
    const QSignalSpy toggles(screen.row.getButtonInstance(), &QAbstractButton::toggled);
    const QSignalSpy clicks(&screen.button, &QAbstractButton::clicked);
    const auto count = [&] { return toggles.size() + clicks.size(); };
    const QPoint left(20, y);
    screen.press(screen.first, left);
    screen.press(screen.second, left);
    screen.release(screen.first, left);
    screen.release(screen.second, left);
    QCOMPARE(count(), 1);
    const QPoint middle(100, y);
    screen.press(screen.first, middle);
    screen.pressMouse(middle);
    screen.release(screen.first, middle);
    screen.releaseMouse(middle);
    QCOMPARE(count(), 2);
    const QPoint right(180, y);
    screen.pressMouse(right);
    screen.press(screen.first, right);
    screen.releaseMouse(right);
    screen.release(screen.first, right);
    QCOMPARE(count(), 3);
}

void TestOnThePanel::secondFingerDoesNothing_data()
{
    QTest::addColumn<bool>("stays_longer");
    QTest::newRow("comes and goes") << false;
    QTest::newRow("stays longer") << true;
}

void TestOnThePanel::secondFingerDoesNothing()
{
    QFETCH(bool, stays_longer);
    Screen screen;
    QVERIFY(screen.is_exposed);
    const QSignalSpy clicks(&screen.button, &QAbstractButton::clicked);
    const QSignalSpy presses_beside(&screen.other, &QAbstractButton::pressed);
    const QPoint place(stays_longer ? 20 : 100, 130);
    const QPoint beside(400, 130);
    screen.press(screen.first, place);
    screen.touch(screen.first).stationary(0).press(1, beside, &screen);
    if (stays_longer) {
        screen.touch(screen.first).release(0, place, &screen).stationary(1);
        screen.touch(screen.first).release(1, beside, &screen);
    } else {
        screen.touch(screen.first).stationary(0).release(1, beside, &screen);
        screen.release(screen.first, place);
    }
    QCOMPARE(clicks.size(), 1);
    QCOMPARE(presses_beside.size(), 0);
}

QTEST_MAIN(TestOnThePanel)
#include "tst_onthepanel.moc"
