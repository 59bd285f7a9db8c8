// SPDX-License-Identifier: MIT
#include "support/onscreen.h"
#include "support/panelscale.h"
#include "support/testcase.h"
#include "support/touch.h"

#include <Finger>
#include <PanelDimmer>

#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

using vexo::hox::qt::panel::PanelDimmer;
using vexo::hox::qt::uitest::Finger;

namespace {

struct Screen
{
    Screen()
    {
        window.resize(400, 300);
        button.setGeometry(100, 100, 200, 100);
        window.show();
        QApplication::setActiveWindow(&window);
    }

    const PanelScale scale{ 5, 5 };
    QWidget window;
    QPushButton button{ &window };
    QLineEdit field{ &window };
    PanelDimmer dimmer{ 0, &window };
    QSignalSpy pressed{ &button, &QPushButton::pressed };
    QSignalSpy dimmed{ &dimmer, &PanelDimmer::dimmed };
    QSignalSpy woken{ &dimmer, &PanelDimmer::woken };
};

} // namespace

class TestPanelDimmer : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void dimsWhenNobodyTouches();
    void touchThatWakesPressesNothing_data();
    void touchThatWakesPressesNothing();
    void keyThatWakesTypesNothing();
    void wheelThatWakesTakesNothingElse();
    void darkens();
    void mayBeDeletedInItsSignals();
};

void TestPanelDimmer::dimsWhenNobodyTouches()
{
    Screen screen;
    QTimerEvent due(0);
    screen.dimmer.setSeconds(1);
    touch(&screen.button, { { 10, 10 } });
    QCoreApplication::sendEvent(&screen.dimmer, &due); // begun before the touch
    QVERIFY(!screen.dimmer.isDimmed());
    QTRY_COMPARE(screen.dimmed.size(), 1);
    QVERIFY(screen.dimmer.isVisible());
    screen.dimmer.wake();
    QCOMPARE(screen.woken.size(), 1);
    QTRY_COMPARE(screen.dimmed.size(), 2); // it waits anew
}

void TestPanelDimmer::touchThatWakesPressesNothing_data()
{
    QTest::addColumn<double>("jitter_mm");
    QTest::addColumn<int>("bounce_ms");
    QTest::newRow("clean") << 0.0 << 0;
    QTest::newRow("trembling") << 1.0 << 0;
    QTest::newRow("bouncing") << 0.3 << 30;
}

void TestPanelDimmer::touchThatWakesPressesNothing()
{
    QFETCH(double, jitter_mm);
    QFETCH(int, bounce_ms);
    Screen screen;
    Finger finger(&screen.window);
    finger.setJitter(jitter_mm).setBounce(bounce_ms);
    screen.dimmer.dim();
    QCOMPARE(screen.dimmed.size(), 1);
    finger.tap(&screen.button);
    QCOMPARE(screen.woken.size(), 1);
    QVERIFY(!screen.dimmer.isVisible());
    QCOMPARE(screen.pressed.size(), 0);
    finger.setBounce(0);
    QTRY_VERIFY((finger.tap(&screen.button), !screen.pressed.isEmpty()));
}

void TestPanelDimmer::keyThatWakesTypesNothing()
{
    Screen screen;
    screen.field.setFocus();
    screen.dimmer.dim();
    QTest::keyClick(&screen.field, Qt::Key_A);
    QCOMPARE(screen.field.text(), QString());
    QVERIFY(!screen.dimmer.isDimmed());
    QTRY_VERIFY((QTest::keyClick(&screen.field, Qt::Key_B), !screen.field.text().isEmpty()));
    QVERIFY(screen.field.text().startsWith(QLatin1Char('b')));
}

void TestPanelDimmer::wheelThatWakesTakesNothingElse()
{
    Screen screen;
    screen.dimmer.dim();
    QWheelEvent wheel(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, 120), Qt::NoButton,
        Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&screen.button, &wheel);
    QVERIFY(!screen.dimmer.isDimmed());
    Finger(&screen.window).tap(&screen.button);
    QCOMPARE(screen.pressed.size(), 1);
}

void TestPanelDimmer::darkens()
{
    Screen screen;
    QPalette white(Qt::white);
    screen.window.setPalette(white);
    screen.dimmer.setDarkness(50);
    screen.dimmer.dim();
    settle();
    const QImage dark = screen.window.grab().toImage();
    QVERIFY(qAbs(qGray(dark.pixel(395, 295)) - 127) <= 2);
    screen.window.resize(500, 400);
    QCOMPARE(screen.dimmer.geometry(), screen.window.rect());
    screen.dimmer.setDarkness(700);
    QCOMPARE(screen.dimmer.darkness(), 100);
}

void TestPanelDimmer::mayBeDeletedInItsSignals()
{
    QWidget window;
    for (const bool is_in_dimmed : { true, false }) {
        auto *dimmer = new PanelDimmer(0, &window);
        const QPointer<PanelDimmer> alive(dimmer);
        if (is_in_dimmed)
            connect(dimmer, &PanelDimmer::dimmed, dimmer, [dimmer] { delete dimmer; });
        else
            connect(dimmer, &PanelDimmer::woken, dimmer, [dimmer] { delete dimmer; });
        dimmer->dim();
        QCOMPARE(alive.isNull(), is_in_dimmed);
        if (alive)
            touch(&window, { { 5, 5 } });
        QVERIFY(!alive);
    }
}

QTEST_MAIN(TestPanelDimmer)
#include "tst_paneldimmer.moc"
