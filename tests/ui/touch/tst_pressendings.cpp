// SPDX-License-Identifier: MIT
#include "support/panelscale.h"
#include "support/pressendings.h"
#include "support/touch.h"

#include <VexoIconButton>
#include <VexoNumericButton>

#include <QAbstractEventDispatcher>

#include <algorithm>

using vexo::hox::qt::ui::VexoIconButton;
using vexo::hox::qt::ui::VexoNumericButton;
using vexo::hox::qt::ui::VexoVerticalScrollArea;

namespace {

const int delivered_ms = 250; // longer than a list holds a press back

bool hasTimer(QObject *object)
{
    return !QAbstractEventDispatcher::instance()->registeredTimers(object).isEmpty();
}

/// A press on one of the classes.
class Trial : public TouchTarget
{
public:
    Trial(const TouchSubject &of, bool is_in_list)
        : TouchTarget(of)
    {
        if (is_in_list)
            screen.addToList({ whole }, 2, 20);
        else
            whole->setParent(screen.page);
        emissions.watch(whole);
        if (touched != whole)
            emissions.watch(touched);
        if (ticks)
            emissions.watch(ticks);
    }

    bool appear()
    {
        if (!screen.appear())
            return false;
        finger = std::make_unique<Finger>(&screen);
        finger->setPlace(screen.placeOf(touched));
        held = { &screen, finger.get(), touched };
        emissions.take();
        return true;
    }

    /// Held, and moved a little beside it.
    void press(bool is_slid)
    {
        finger->press(screen.placeOf(touched));
        virtualclock::pass(delivered_ms);
        if (is_slid && !qobject_cast<QAbstractSlider *>(whole))
            finger->move(QPoint(12, 0)); // a swipe for rows and boxes, near for easy access
        emissions.take();
    }

    // The offscreen platform warns that it cannot grab and raise.
    void perform(PressEnding::Action action)
    {
        const Messages ignored;
        action(held);
    }

    void liftOnIt()
    {
        finger->move(screen.placeOf(touched) - finger->place());
        finger->lift();
    }

    void tap()
    {
        for (auto *list : screen.findChildren<VexoVerticalScrollArea *>())
            list->scrollToTop();
        finger->press(screen.placeOf(touched));
        virtualclock::pass(20);
        finger->lift();
    }

    bool isDown() const
    {
        auto *button = qobject_cast<QAbstractButton *>(touched);
        auto *slider = qobject_cast<QAbstractSlider *>(touched);
        return (button && button->isDown()) || (slider && slider->isSliderDown());
    }

    TouchScreen screen;
    std::unique_ptr<Finger> finger;
    Held held{};
    Emissions emissions;
};

/// Memory that takes the place of what was deleted before, as other objects of a screen would. The
/// toolkit, which may write to it, is built without sanitizers.
class Successor
{
public:
    Successor()
    {
        const int largest = 1024;
        for (int size = 16; size <= largest; size += 16)
            m_blocks.emplace_back(size_t(size), '\xff');
    }

    bool isUntouched() const
    {
        return std::all_of(m_blocks.begin(), m_blocks.end(), [](const std::vector<char> &block) {
            return std::all_of(block.begin(), block.end(), [](char c) { return c == '\xff'; });
        });
    }

private:
    std::vector<std::vector<char>> m_blocks;
};

} // namespace

Q_DECLARE_METATYPE(const PressEnding *)

class TestPressEndings : public VirtualTimeTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nothingFollowsAnEnding_data();
    void nothingFollowsAnEnding();
    void onlyATapOperates_data() { addTouchSubjects(); }
    void onlyATapOperates();
    void mayBeDeletedWhileHeld_data() { addTouchSubjects(); }
    void mayBeDeletedWhileHeld();
    void mayBeDeletedInItsSignals_data();
    void mayBeDeletedInItsSignals();
    void ringsTheDelegatorOfItsConstruction_data() { addTouchSubjects(); }
    void ringsTheDelegatorOfItsConstruction();
    void menuOfTheButtonEndsThePulse();
    void menuEndsTheRepeatOfAStepper();

private:
    void checkEnding(const TouchSubject &subject, const PressEnding &ending, int variant);

    const PanelScale m_scale{ 4, 4 };
};

void TestPressEndings::nothingFollowsAnEnding_data()
{
    QTest::addColumn<const TouchSubject *>("subject");
    QTest::addColumn<const PressEnding *>("ending");
    for (const TouchSubject &subject : touchSubjects()) {
        for (const PressEnding &ending : pressEndings())
            QTest::addRow("%s, %s", subject.name, ending.name) << &subject << &ending;
    }
}

void TestPressEndings::nothingFollowsAnEnding()
{
    QFETCH(const TouchSubject *, subject);
    QFETCH(const PressEnding *, ending);
    for (int variant = 0; variant < 8; ++variant)
        checkEnding(*subject, *ending, variant);
}

void TestPressEndings::checkEnding(
    const TouchSubject &subject, const PressEnding &ending, int variant)
{
    const QByteArray where = QByteArray::number(variant) + ": ";
    const bool is_held_on = variant & 4; // the finger is lifted only when all is as it was
    Trial trial(subject, variant & 1);
    QVERIFY(trial.appear());
    trial.press(variant & 2);
    trial.perform(ending.end);
    virtualclock::pass(1000); // of pulses and long presses
    QCOMPARE(where + trial.emissions.take(), where + subject.let_go);
    QVERIFY2(!trial.isDown() && !hasTimer(trial.touched), where);
    if (!is_held_on)
        trial.finger->lift();
    trial.perform(ending.undo);
    virtualclock::pass(10);
    if (is_held_on)
        trial.liftOnIt();
    virtualclock::pass(2000); // until a list rests
    QCOMPARE(where + trial.emissions.take(), where);
    trial.tap();
    QCOMPARE(where + trial.emissions.take(), where + subject.tap);
}

void TestPressEndings::onlyATapOperates()
{
    QFETCH(const TouchSubject *, subject);
    Trial trial(*subject, false);
    QVERIFY(trial.appear());
    trial.perform(clickRight);
    trial.perform(closePopup);
    QCOMPARE(trial.emissions.take(), QByteArray());
    if (qobject_cast<QAbstractButton *>(trial.touched)) {
        finger(trial.touched, QEvent::MouseButtonRelease, trial.touched->rect().center()); // stray
        QCOMPARE(trial.emissions.take(), QByteArray());
    }
    virtualclock::pass(300); // longer than between the presses of a double tap
    trial.tap();
    QCOMPARE(trial.emissions.take(), QByteArray(subject->tap));
}

void TestPressEndings::mayBeDeletedWhileHeld()
{
    QFETCH(const TouchSubject *, subject);
    for (const bool is_in_list : { false, true }) {
        Trial trial(*subject, is_in_list);
        QVERIFY(trial.appear());
        trial.press(true);
        delete trial.touched;
        virtualclock::pass(500);
        trial.finger->move(QPoint(0, 3));
        trial.finger->lift();
        virtualclock::pass(500);
    }
}

void TestPressEndings::mayBeDeletedInItsSignals_data()
{
    QTest::addColumn<const TouchSubject *>("subject");
    QTest::addColumn<QByteArray>("signal");
    // The toolkit goes on after these, and in its own button within the scroll area.
    const QByteArrayList exempt{ "toggled", "stateChanged", "sliderReleased", "actionTriggered" };
    for (const TouchSubject &subject : touchSubjects()) {
        const bool is_stock = QByteArray(subject.part) == "letterButton";
        for (const QByteArray &name : QByteArray(is_stock ? "" : subject.tap).split(';')) {
            const QByteArray signal = name.trimmed();
            if (!signal.isEmpty() && !exempt.contains(signal))
                QTest::addRow("%s, %s", subject.name, signal.constData()) << &subject << signal;
        }
    }
}

void TestPressEndings::mayBeDeletedInItsSignals()
{
    QFETCH(const TouchSubject *, subject);
    QFETCH(QByteArray, signal);
    for (int variant = 0; variant < 4; ++variant) {
        Trial trial(*subject, variant & 1);
        QVERIFY(trial.appear());
        const QPointer<QWidget> whole = trial.whole;
        std::unique_ptr<Successor> successor;
        const auto watcher = Emissions::onEach({ trial.whole, trial.touched }, signal, [&] {
            delete whole;
            successor = std::make_unique<Successor>();
        });
        trial.finger->press(trial.screen.placeOf(trial.touched));
        virtualclock::pass(20);
        if (variant & 2)
            trial.finger->move(QPoint(8, 0)); // beside it, where easy access still clicks
        trial.finger->lift();
        virtualclock::pass(500);
        QVERIFY2(!whole || (variant & 2), QByteArray::number(variant));
        QVERIFY2(!successor || successor->isUntouched(), QByteArray::number(variant));
    }
}

void TestPressEndings::ringsTheDelegatorOfItsConstruction()
{
    QFETCH(const TouchSubject *, subject);
    Trial silent(*subject, false);
    const ToneCounter delegator;
    Trial trial(*subject, false);
    const ToneCounter later;
    for (Trial *each : { &silent, &trial }) {
        QVERIFY(each->appear());
        virtualclock::pass(300); // else it would be a bounce
        each->tap();
    }
    QCOMPARE(delegator.tones, subject->is_silent ? 0 : 1);
    QCOMPARE(later.tones, 0);
}

void TestPressEndings::menuOfTheButtonEndsThePulse()
{
    TouchScreen screen;
    VexoIconButton button(screen.page);
    button.setFixedSize(160, 50);
    QMenu menu;
    menu.addAction("Item");
    button.setMenu(&menu);
    button.setPopupMode(QToolButton::InstantPopup);
    QAction ticks;
    button.pulse(50, &ticks, SLOT(trigger()));
    button.enablePulse(true);
    QVERIFY(screen.appear());
    Emissions emissions;
    emissions.watch(&ticks);
    // Closed within the press, whose handler runs the menu's loop.
    connect(
        &menu, &QMenu::aboutToShow, &menu, [&] { QTimer::singleShot(0, &menu, &QMenu::close); });
    const Messages ignored;
    Finger finger(&screen);
    finger.press(QPoint(80, 25));
    virtualclock::pass(1000);
    QCOMPARE(emissions.take(), QByteArray());
    QVERIFY(!button.isDown());
    finger.lift();
}

void TestPressEndings::menuEndsTheRepeatOfAStepper()
{
    TouchScreen screen;
    VexoNumericButton stepper(screen.page);
    stepper.setFixedSize(300, 50);
    stepper.setMaximum(1000);
    auto *plus = stepper.findChild<VexoIconButton *>("increaseButton");
    plus->setAutoRepeat(true);
    QVERIFY(screen.appear());
    Finger finger(&screen);
    finger.press(screen.placeOf(plus));
    virtualclock::pass(1000);
    const int reached = stepper.value();
    QVERIFY(reached > 2);
    Held held{ &screen, &finger, plus };
    const Messages ignored;
    popUpMenu(held, &screen);
    virtualclock::pass(1000);
    QCOMPARE(stepper.value(), reached);
    QVERIFY(!hasTimer(plus));
}

QTEST_MAIN(TestPressEndings)
#include "tst_pressendings.moc"
