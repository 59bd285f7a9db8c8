// SPDX-License-Identifier: MIT
#include "support/virtualclock.h"

#include <MeasuredPushButton>
#include <VexoFeedbackDelegator>

#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace vexo::hox::qt::ui;

namespace {

const char *const LONG_STILL_HELD = "long, held";

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
                lines += pressed ? LONG_STILL_HELD : short_pressed ? "short" : "long";
                elapsed_ms = ms;
            });
    }

    QByteArray text() const { return lines.join("; "); }

    QByteArrayList lines;
    uint delayed_ms = 0;
    uint elapsed_ms = 0;
};

class Delegator : public VexoFeedbackDelegator
{
public:
    void tone() override { ++tones; }
    void down() override { }
    void up() override { }
    int tones = 0;
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
    QTest::mousePress(button, Qt::LeftButton);
}

void release(QWidget *button)
{
    QTest::mouseRelease(button, Qt::LeftButton);
}

/// Lets the time of \a count ticks of \a interval_ms pass.
void runLoop(int count, int interval_ms)
{
    virtualclock::pass(count * interval_ms);
}

} // namespace

class TestMeasuredPushButton : public VirtualTimeTestCase
{
    Q_OBJECT

public Q_SLOTS:
    void countPulse() { ++m_pulses; }

private Q_SLOTS:
    void init();
    void shortPressIsReportedAfterTheClick();
    void longPressIsReportedWhileHeldAndAtTheRelease();
    void releaseOffTheButtonIsMeasuredToo();
    void hookReceivesTheDurationInsteadOfTheSignal();
    void pulsesWhileHeld();
    void pulseConnectionsAddUp();
    void pulseNeedsIntervalAndPermission_data();
    void pulseNeedsIntervalAndPermission();
    void endedPressIsSilent_data();
    void endedPressIsSilent();
    void dialogInASlotReportsNoLongPress();
    void ringsTheDelegatorOfItsConstruction();

private:
    int m_pulses = 0;
};

void TestMeasuredPushButton::init()
{
    TestCase::init();
    m_pulses = 0;
}

void TestMeasuredPushButton::shortPressIsReportedAfterTheClick()
{
    MeasuredPushButton button;
    const Log log(&button);
    press(&button);
    release(&button);
    QCOMPARE(log.text(), QByteArray("pressed; released; clicked; delayed; short"));
    QCOMPARE(log.delayed_ms, log.elapsed_ms);
    QVERIFY(log.elapsed_ms < 300);
}

void TestMeasuredPushButton::longPressIsReportedWhileHeldAndAtTheRelease()
{
    MeasuredPushButton button;
    const Log log(&button);
    press(&button);
    runLoop(1, 290);
    QCOMPARE(log.text(), QByteArray("pressed"));
    runLoop(1, 20);
    QCOMPARE(log.text(), QByteArray("pressed; long, held"));
    QVERIFY2(log.elapsed_ms >= 300, qPrintable(QString::number(log.elapsed_ms)));
    release(&button);
    QCOMPARE(log.text(), QByteArray("pressed; long, held; released; clicked; delayed; long"));
    QCOMPARE(log.delayed_ms, log.elapsed_ms);
    runLoop(4, 100);
    QCOMPARE(log.lines.size(), 6);
}

void TestMeasuredPushButton::releaseOffTheButtonIsMeasuredToo()
{
    MeasuredPushButton button;
    button.resize(100, 50);
    const Log log(&button);
    press(&button);
    QTest::mouseMove(&button, QPoint(150, 25));
    QMouseEvent away(QEvent::MouseMove, QPointF(150, 25), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(&button, &away);
    QTest::mouseRelease(&button, Qt::LeftButton, {}, QPoint(150, 25));
    QCOMPARE(log.text(), QByteArray("pressed; released; delayed; short"));
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
    runLoop(4, 20);
    QVERIFY(m_pulses >= 3);
    release(&button);
    const int pulses = m_pulses;
    runLoop(3, 20);
    QCOMPARE(m_pulses, pulses);

    press(&button);
    runLoop(2, 20);
    QVERIFY(m_pulses > pulses);
    button.enablePulse(false);
    const int until_switched_off = m_pulses;
    button.enablePulse(true); // acts at the next press
    runLoop(3, 20);
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
    runLoop(2, 20);
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
    runLoop(3, 10);
    QCOMPARE(m_pulses, 0);
}

void TestMeasuredPushButton::endedPressIsSilent_data()
{
    QTest::addColumn<QByteArray>("by");
    QTest::addColumn<bool>("in_slot"); // of pressed()
    QTest::newRow("hidden") << QByteArray("hide") << false;
    QTest::newRow("disabled") << QByteArray("disable") << false;
    QTest::newRow("parent hidden") << QByteArray("hide parent") << false;
    QTest::newRow("hidden by pressed()") << QByteArray("hide") << true;
    QTest::newRow("disabled by pressed()") << QByteArray("disable") << true;
}

void TestMeasuredPushButton::endedPressIsSilent()
{
    QFETCH(QByteArray, by);
    QFETCH(bool, in_slot);
    QWidget parent;
    MeasuredPushButton button(&parent);
    parent.show();
    button.pulse(20, this, SLOT(countPulse()));
    button.enablePulse(true);
    const Log log(&button);
    const auto end = [&] {
        if (by == "disable")
            button.setEnabled(false);
        else if (by == "hide")
            button.hide();
        else
            parent.hide();
    };
    if (in_slot)
        connect(&button, &QAbstractButton::pressed, &parent, end);
    press(&button);
    if (!in_slot)
        end();
    QVERIFY(!button.isDown());
    button.setEnabled(true);
    parent.show();
    button.show();
    runLoop(4, 100); // longer than a long press
    release(&button);
    QCOMPARE(log.text(), QByteArray("pressed"));
    QCOMPARE(m_pulses, 0);
}

void TestMeasuredPushButton::dialogInASlotReportsNoLongPress()
{
    MeasuredPushButton button;
    const Log log(&button);
    connect(&button, &QAbstractButton::clicked, this, [] { runLoop(4, 100); });
    press(&button);
    release(&button);
    QCOMPARE(log.text(), QByteArray("pressed; released; clicked; delayed; short"));
}

void TestMeasuredPushButton::ringsTheDelegatorOfItsConstruction()
{
    MeasuredPushButton silent;
    auto delegator = std::make_unique<Delegator>();
    VexoFeedbackDelegator::tone_delegator = delegator.get();
    MeasuredPushButton button;
    Delegator later;
    VexoFeedbackDelegator::tone_delegator = &later;
    QTest::mouseClick(&silent, Qt::LeftButton);
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(delegator->tones, 1);
    QCOMPARE(later.tones, 0);

    delegator.reset(); // was not the one installed
    QCOMPARE(VexoFeedbackDelegator::tone_delegator, &later);
    QTest::mouseClick(&button, Qt::LeftButton);
    auto installed = std::make_unique<Delegator>();
    VexoFeedbackDelegator::tone_delegator = installed.get();
    installed.reset();
    QVERIFY(!VexoFeedbackDelegator::tone_delegator);
}

QTEST_MAIN(TestMeasuredPushButton)
#include "tst_measuredpushbutton.moc"
