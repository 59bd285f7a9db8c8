// SPDX-License-Identifier: MIT
#include "support/panelscale.h"
#include "support/testcase.h"
#include "support/touch.h"
#include "support/touchscreen.h"

#include <VexoIconButton>
#include <VexoNumericButton>

#include <QAbstractButton>
#include <QAbstractEventDispatcher>
#include <QDialog>
#include <QMenu>
#include <QPointer>

#include <memory>

using vexo::hox::qt::ui::VexoIconButton;
using vexo::hox::qt::ui::VexoNumericButton;

namespace {

const int delivered_ms = 250; // longer than a list holds a press back

/// What ends a press, and what makes the widget as it was.
struct Ending
{
    using Action = std::function<void(TouchScreen &screen, Finger &finger, QWidget *touched)>;
    const char *name;
    Action end;
    Action undo;
};

QPointer<QWidget> over; // a dialog or popup

void nothing(TouchScreen &, Finger &, QWidget *) { }

void closeOver(TouchScreen &, Finger &, QWidget *)
{
    delete over;
}

template <Qt::WindowModality modality>
void openDialog(TouchScreen &screen, Finger &, QWidget *)
{
    over = new QDialog(&screen);
    over->setWindowModality(modality);
    over->show();
}

void openMenuOf(QWidget *parent)
{
    auto *menu = new QMenu(parent);
    menu->addAction(QStringLiteral("Item"));
    menu->popup(QPoint(300, 400));
    over = menu;
}

void openMenu(TouchScreen &screen, Finger &, QWidget *)
{
    openMenuOf(&screen);
}

void openMenuOfTouched(TouchScreen &, Finger &, QWidget *touched)
{
    openMenuOf(touched);
}

// In a list, which then takes the press back; it leaves sliders alone.
void swipe(TouchScreen &screen, Finger &finger, QWidget *touched)
{
    if (screen.list && !qobject_cast<QAbstractSlider *>(touched))
        finger.move(QPoint(0, -150)); // in one leap
    else
        finger.clickRight();
}

// The right button opens the menu of a field.
void closePopup(TouchScreen &, Finger &, QWidget *)
{
    if (QWidget *popup = QApplication::activePopupWidget())
        popup->close();
}

void send(QWidget *widget, QEvent::Type type)
{
    QEvent event(type);
    QCoreApplication::sendEvent(widget, &event);
}

void grab(TouchScreen &screen, Finger &finger, QWidget *)
{
    screen.pages->widget(1)->show();
    screen.pages->widget(1)->setGeometry(390, 490, 10, 10);
    screen.pages->widget(1)->grabMouse();
    finger.move(QPoint(1, 0));
}

void releaseGrab(TouchScreen &screen, Finger &, QWidget *)
{
    screen.pages->widget(1)->releaseMouse();
    screen.pages->widget(1)->hide();
}

const std::vector<Ending> ENDINGS = {
    { "scroller, or another button", swipe, closePopup },
    { "hidden", [](TouchScreen &, Finger &, QWidget *touched) { touched->hide(); },
        [](TouchScreen &, Finger &, QWidget *touched) { touched->show(); } },
    { "page left",
        [](TouchScreen &screen, Finger &, QWidget *) { screen.pages->setCurrentIndex(1); },
        [](TouchScreen &screen, Finger &, QWidget *) { screen.pages->setCurrentIndex(0); } },
    { "disabled", [](TouchScreen &, Finger &, QWidget *touched) { touched->setEnabled(false); },
        [](TouchScreen &, Finger &, QWidget *touched) { touched->setEnabled(true); } },
    { "page disabled",
        [](TouchScreen &screen, Finger &, QWidget *) { screen.page->setEnabled(false); },
        [](TouchScreen &screen, Finger &, QWidget *) { screen.page->setEnabled(true); } },
    { "dialog of the application", openDialog<Qt::ApplicationModal>, closeOver },
    { "dialog of the window", openDialog<Qt::WindowModal>, closeOver },
    { "menu", openMenu, closeOver },
    { "menu of the widget", openMenuOfTouched, closeOver },
    { "grab told",
        [](TouchScreen &, Finger &, QWidget *touched) { send(touched, QEvent::UngrabMouse); },
        nothing },
    { "grab found out", grab, releaseGrab },
    { "right button", [](TouchScreen &, Finger &finger, QWidget *) { finger.clickRight(); },
        closePopup },
    { "release lost",
        [](TouchScreen &, Finger &finger, QWidget *) { finger.press(QPoint(395, 495)); }, nothing },
};

/// A press that is ended on one of the classes.
class Trial
{
public:
    Trial(const TouchSubject &subject, bool is_in_list)
        : m_whole(subject.make())
    {
        if (is_in_list)
            screen.addToList({ m_whole }, 2, 20);
        else
            m_whole->setParent(screen.page);
        touched = touchedPart(subject, m_whole);
        emissions.watch(m_whole);
        if (touched != m_whole)
            emissions.watch(touched);
        if (auto *ticks = m_whole->findChild<QAction *>({}, Qt::FindDirectChildrenOnly))
            emissions.watch(ticks);
    }

    void point()
    {
        finger = std::make_unique<Finger>(&screen);
        finger->setPlace(screen.placeOf(touched));
        emissions.take();
    }

    /// Held, and moved a little beside it.
    void press(bool is_slid)
    {
        point();
        finger->press(screen.placeOf(touched));
        virtualclock::pass(delivered_ms);
        if (is_slid && !qobject_cast<QAbstractSlider *>(m_whole))
            finger->move(QPoint(12, 0)); // a swipe for rows and boxes, near for easy access
        emissions.take();
    }

    // The offscreen platform warns that it cannot grab and raise.
    void perform(const Ending::Action &action)
    {
        const Messages ignored;
        action(screen, *finger, touched);
    }

    void liftOnIt()
    {
        finger->move(screen.placeOf(touched) - finger->place());
        finger->lift();
    }

    void tap()
    {
        for (auto *list : screen.findChildren<vexo::hox::qt::ui::VexoVerticalScrollArea *>())
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

    bool hasTimer() const
    {
        return !QAbstractEventDispatcher::instance()->registeredTimers(touched).isEmpty();
    }

    TouchScreen screen;
    std::unique_ptr<Finger> finger;
    QWidget *touched = nullptr;
    Emissions emissions;

private:
    QWidget *const m_whole;
};

} // namespace

Q_DECLARE_METATYPE(const TouchSubject *)
Q_DECLARE_METATYPE(const Ending *)

class TestPressEndings : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void nothingFollowsAnEnding_data();
    void nothingFollowsAnEnding();
    void onlyATapOperates_data();
    void onlyATapOperates();
    void mayBeDeletedWhileHeld_data() { onlyATapOperates_data(); }
    void mayBeDeletedWhileHeld();
    void menuOfTheButtonEndsThePulse();
    void menuEndsTheRepeatOfAStepper();

private:
    void checkEnding(const TouchSubject &subject, const Ending &ending, int variant);

    const PanelScale m_scale{ 4, 4 };
};

void TestPressEndings::initTestCase()
{
    TestCase::initTestCase();
    virtualclock::start();
}

void TestPressEndings::nothingFollowsAnEnding_data()
{
    QTest::addColumn<const TouchSubject *>("subject");
    QTest::addColumn<const Ending *>("ending");
    for (const TouchSubject &subject : touchSubjects()) {
        for (const Ending &ending : ENDINGS)
            QTest::addRow("%s, %s", subject.name, ending.name) << &subject << &ending;
    }
}

void TestPressEndings::nothingFollowsAnEnding()
{
    QFETCH(const TouchSubject *, subject);
    QFETCH(const Ending *, ending);
    for (int variant = 0; variant < 8; ++variant)
        checkEnding(*subject, *ending, variant);
}

void TestPressEndings::checkEnding(const TouchSubject &subject, const Ending &ending, int variant)
{
    const QByteArray where = QByteArray::number(variant) + ": ";
    const bool is_held_on = variant & 4; // the finger is lifted only when all is as it was
    Trial trial(subject, variant & 1);
    QVERIFY(trial.screen.appear());
    trial.press(variant & 2);
    trial.perform(ending.end);
    virtualclock::pass(1000); // of pulses and long presses
    QCOMPARE(where + trial.emissions.take(), where + subject.let_go);
    QVERIFY2(!trial.isDown() && !trial.hasTimer(), where);
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

void TestPressEndings::onlyATapOperates_data()
{
    QTest::addColumn<const TouchSubject *>("subject");
    for (const TouchSubject &subject : touchSubjects())
        QTest::addRow("%s", subject.name) << &subject;
}

void TestPressEndings::onlyATapOperates()
{
    QFETCH(const TouchSubject *, subject);
    Trial trial(*subject, false);
    QVERIFY(trial.screen.appear());
    trial.point();
    trial.perform([](TouchScreen &, Finger &finger, QWidget *) { finger.clickRight(); });
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
        QVERIFY(trial.screen.appear());
        trial.press(true);
        delete trial.touched;
        virtualclock::pass(500);
        trial.finger->move(QPoint(0, 3));
        trial.finger->lift();
        virtualclock::pass(500);
    }
}

void TestPressEndings::menuOfTheButtonEndsThePulse()
{
    TouchScreen screen;
    VexoIconButton button(screen.page);
    button.setFixedSize(160, 50);
    QMenu menu;
    menu.addAction(QStringLiteral("Item"));
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
    auto *plus = stepper.findChild<VexoIconButton *>(QStringLiteral("increaseButton"));
    plus->setAutoRepeat(true);
    QVERIFY(screen.appear());
    Finger finger(&screen);
    finger.press(screen.placeOf(plus));
    virtualclock::pass(1000);
    const int reached = stepper.value();
    QVERIFY(reached > 2);
    {
        const Messages ignored;
        openMenuOf(&screen);
    }
    virtualclock::pass(1000);
    QCOMPARE(stepper.value(), reached);
    QVERIFY(QAbstractEventDispatcher::instance()->registeredTimers(plus).isEmpty());
}

QTEST_MAIN(TestPressEndings)
#include "tst_pressendings.moc"
