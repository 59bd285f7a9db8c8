// SPDX-License-Identifier: MIT
#include "support/touch.h"
#include "support/virtualclock.h"

#include <MeasuredPushButton>

using namespace vexo::hox::qt::ui;

namespace {

/// What the button emits, in order, without the times.
class Log : public QObject
{
public:
    explicit Log(MeasuredPushButton *button)
    {
        const auto note = [this](const char *line) { return [this, line] { lines += line; }; };
        connect(button, &QAbstractButton::pressed, this, note("pressed"));
        connect(button, &QAbstractButton::released, this, note("released"));
        connect(button, &QAbstractButton::clicked, this, note("clicked"));
        connect(button, &MeasuredPushButton::pressedDelayed, this, [this](uint ms) {
            lines += "delayed";
            delayed_ms = ms;
        });
        connect(button, &MeasuredPushButton::keyPressHandling, this,
            [this](uint ms, bool short_pressed, bool pressed) {
                lines += pressed ? "long, held" : short_pressed ? "short" : "long";
                elapsed_ms = ms;
            });
    }

    QByteArray text() const { return lines.join("; "); }

    QByteArrayList lines;
    uint delayed_ms = 0;
    uint elapsed_ms = 0;
};

/// Counts what the hook for subclasses is told.
class Hooked : public MeasuredPushButton
{
public:
    QVector<uint> told_ms;

protected:
    using MeasuredPushButton::mouseReleaseEvent;
    void mouseReleaseEvent(unsigned int elapsed_ms) override { told_ms += elapsed_ms; }
};

void press(QWidget *button)
{
    finger(button, QEvent::MouseButtonPress, QPoint(5, 5));
}

void release(QWidget *button, const QPoint &at = QPoint(5, 5))
{
    finger(button, QEvent::MouseMove, at);
    finger(button, QEvent::MouseButtonRelease, at);
}

} // namespace

class TestMeasuredPushButton : public VirtualTimeTestCase
{
    Q_OBJECT

public Q_SLOTS:
    void countPulse() { ++m_pulses; }

private Q_SLOTS:
    void init();
    void pressIsMeasured_data();
    void pressIsMeasured();
    void hookReceivesTheDurationInsteadOfTheSignal();
    void pulsesWhileHeld();
    void pulseConnectionsAddUp();
    void pulseNeedsIntervalAndPermission_data();
    void pulseNeedsIntervalAndPermission();
    void slotOfPressedMayEndThePress_data();
    void slotOfPressedMayEndThePress();
    void dialogInASlotReportsNoLongPress();
    void delegatorMayGo();

private:
    int m_pulses = 0;
};

void TestMeasuredPushButton::init()
{
    TestCase::init();
    m_pulses = 0;
}

void TestMeasuredPushButton::pressIsMeasured_data()
{
    QTest::addColumn<int>("held_ms");
    QTest::addColumn<QPoint>("released_at"); // on a button of 100 x 50 px
    QTest::addColumn<QByteArray>("told");
    const QPoint inside(5, 5);
    QTest::newRow("short") << 290 << inside
                           << QByteArray("pressed; released; clicked; delayed; short");
    QTest::newRow("long") << 310 << inside
                          << QByteArray("pressed; long, held; released; clicked; delayed; long");
    QTest::newRow("off it") << 0 << QPoint(150, 25)
                            << QByteArray("pressed; released; delayed; short");
}

void TestMeasuredPushButton::pressIsMeasured()
{
    QFETCH(int, held_ms);
    QFETCH(QPoint, released_at);
    QFETCH(QByteArray, told);
    MeasuredPushButton button;
    button.resize(100, 50);
    const Log log(&button);
    press(&button);
    virtualclock::pass(held_ms);
    QVERIFY(log.lines.size() == 1 || log.elapsed_ms >= 300);
    release(&button, released_at);
    QCOMPARE(log.text(), told);
    QCOMPARE(log.delayed_ms, log.elapsed_ms);
    QVERIFY(qAbs(int(log.elapsed_ms) - held_ms) < 10);
    virtualclock::pass(400);
    QCOMPARE(log.text(), told);
}

void TestMeasuredPushButton::hookReceivesTheDurationInsteadOfTheSignal()
{
    Hooked button;
    const Log log(&button);
    press(&button);
    release(&button);
    QCOMPARE(button.told_ms, QVector<uint>{ log.elapsed_ms });
    QCOMPARE(log.text(), QByteArray("pressed; released; clicked; short"));
}

void TestMeasuredPushButton::pulsesWhileHeld()
{
    MeasuredPushButton button;
    button.pulse(20, this, SLOT(countPulse()));
    button.enablePulse(true);
    press(&button);
    QCOMPARE(m_pulses, 0);
    virtualclock::pass(80);
    QVERIFY(m_pulses >= 3);
    release(&button);
    const int pulses = m_pulses;
    virtualclock::pass(60);
    QCOMPARE(m_pulses, pulses);

    press(&button);
    virtualclock::pass(40);
    QVERIFY(m_pulses > pulses);
    button.enablePulse(false);
    const int until_switched_off = m_pulses;
    button.enablePulse(true); // acts at the next press
    virtualclock::pass(60);
    QCOMPARE(m_pulses, until_switched_off);
}

void TestMeasuredPushButton::pulseConnectionsAddUp()
{
    MeasuredPushButton button;
    auto receiver = std::make_unique<QObject>();
    button.pulse(20, receiver.get(), SLOT(deleteLater()));
    button.pulse(1000000, this, SLOT(countPulse()));
    button.pulse(20, this, SLOT(countPulse()));
    receiver.reset();
    button.enablePulse(true);
    press(&button);
    virtualclock::pass(40);
    QVERIFY(m_pulses > 0);
    QCOMPARE(m_pulses % 2, 0);
}

void TestMeasuredPushButton::pulseNeedsIntervalAndPermission_data()
{
    QTest::addColumn<bool>("set");
    QTest::addColumn<uint>("interval");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("not enabled") << true << 1u << false;
    QTest::newRow("interval of 0 ms") << true << 0u << true;
    QTest::newRow("interval beyond int") << true << 4000000000u << true;
    QTest::newRow("pulse() never called") << false << 0u << true;
}

void TestMeasuredPushButton::pulseNeedsIntervalAndPermission()
{
    QFETCH(bool, set);
    QFETCH(uint, interval);
    QFETCH(bool, enabled);
    MeasuredPushButton button;
    if (set) {
        button.pulse(interval, this, SLOT(countPulse()));
        button.pulse(interval, nullptr, SLOT(countPulse()));
        button.pulse(interval, this, nullptr);
    }
    button.enablePulse(enabled);
    press(&button);
    virtualclock::pass(30);
    QCOMPARE(m_pulses, 0);
}

void TestMeasuredPushButton::slotOfPressedMayEndThePress_data()
{
    QTest::addColumn<bool>("hides"); // or disables
    QTest::newRow("hide") << true;
    QTest::newRow("disable") << false;
}

void TestMeasuredPushButton::slotOfPressedMayEndThePress()
{
    QFETCH(bool, hides);
    QWidget parent;
    MeasuredPushButton button(&parent);
    parent.show();
    button.pulse(20, this, SLOT(countPulse()));
    button.enablePulse(true);
    const Log log(&button);
    connect(&button, &QAbstractButton::pressed, &parent,
        [&] { hides ? button.hide() : button.setEnabled(false); });
    press(&button);
    QVERIFY(!button.isDown());
    button.setEnabled(true);
    button.show();
    virtualclock::pass(400); // longer than a long press
    release(&button);
    QCOMPARE(log.text(), QByteArray("pressed"));
    QCOMPARE(m_pulses, 0);
}

void TestMeasuredPushButton::dialogInASlotReportsNoLongPress()
{
    MeasuredPushButton button;
    const Log log(&button);
    connect(&button, &QAbstractButton::clicked, this, [] { virtualclock::pass(400); });
    press(&button);
    release(&button);
    QCOMPARE(log.text(), QByteArray("pressed; released; clicked; delayed; short"));
}

void TestMeasuredPushButton::delegatorMayGo()
{
    auto former = std::make_unique<ToneCounter>();
    MeasuredPushButton button;
    auto installed = std::make_unique<ToneCounter>();
    former.reset();
    QCOMPARE(VexoFeedbackDelegator::tone_delegator, installed.get());
    touch(&button);
    QCOMPARE(installed->tones, 0);
    installed.reset();
    QVERIFY(!VexoFeedbackDelegator::tone_delegator);
}

QTEST_MAIN(TestMeasuredPushButton)
#include "tst_measuredpushbutton.moc"
