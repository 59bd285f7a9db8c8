// SPDX-License-Identifier: MIT
#include "support/panelscale.h"
#include "support/pressendings.h"

#include <VexoSlider>

#include <QAbstractButton>
#include <QRandomGenerator>

using vexo::hox::qt::ui::VexoSlider;
using vexo::hox::qt::ui::VexoVerticalScrollArea;

namespace {

const int far_px = 120; // further than each widget is wide with what easy access adds

/// One of the classes on the screen, what it has told, and what the model expects.
struct Target : TouchTarget
{
    using TouchTarget::TouchTarget;

    std::unique_ptr<QSignalSpy> clicks;
    std::unique_ptr<QSignalSpy> pulses;
    bool is_in_list = false;
    int expected = 0;

    int excess() const { return clicks->count() - expected; }
};

/// What a tap is: a press on a widget that can be touched, and the release of it, with nothing
/// between that ends a press or moves the finger away.
struct Model
{
    Target *armed = nullptr; // its press goes on
    bool is_unsure = false; // it touched a list that moved: may click or not
    bool is_double = false; // the press was the second of a double click, which no list takes back
    bool is_far = false;
    bool is_up = false; // where it goes if it goes far
    bool may_pulse = false; // also with the finger beside the widget
    QPoint way;

    void end()
    {
        armed = nullptr;
        may_pulse = false;
    }

    void move(const QPoint &by)
    {
        way += by;
        is_far = is_far || qAbs(way.y()) >= far_px;
        if (!armed || !is_far)
            return;
        const bool is_slider = qobject_cast<VexoSlider *>(armed->touched);
        if (armed->is_in_list && (!is_double || is_slider))
            end();
        else if (!armed->subject->is_lax)
            armed = nullptr;
    }
};

QByteArray nameOf(const Target &target)
{
    return target.subject->name + QByteArray(target.is_in_list ? " in the list" : "");
}

std::unique_ptr<QSignalSpy> spyOn(QObject *sender, const QByteArray &signal)
{
    const QMetaObject *meta = sender->metaObject();
    return std::make_unique<QSignalSpy>(sender, meta->method(meta->indexOfSignal(signal)));
}

/// All classes, in a list and beside it, under one finger.
class RandomScreen : public QObject
{
public:
    explicit RandomScreen(quint32 seed);

    bool appear() { return m_screen.appear(); }
    void step();
    /// Empty, or what is wrong and how it came.
    QByteArray fault();
    int taps() const { return m_taps; }

    bool eventFilter(QObject *, QEvent *event) override
    {
        m_double_clicks += event->type() == QEvent::MouseButtonDblClick;
        return false;
    }

private:
    int random(int end) { return int(m_random.bounded(quint32(end))); }
    void add(const TouchSubject &subject, bool is_in_list, int index);
    void stepWithFingerUp();
    void stepWithFingerDown();
    void press(Target *target);
    void move(const QPoint &way);
    void lift();
    void pass(int ms);
    void clickRight();
    void putObstacle(Target *target);
    void removeObstacle();
    bool isObstacle(PressEnding::Kind kind) const { return m_obstacle && m_obstacle->kind == kind; }
    bool isResting() const;
    Target *targetAt(const QPoint &at) const;
    void reveal(const Target &target);
    void note(const QByteArray &line);

    TouchScreen m_screen{ QSize(640, 590) }; // all of it on the screen
    std::vector<std::unique_ptr<Target>> m_targets;
    std::unique_ptr<Finger> m_finger;
    QRandomGenerator m_random;
    Model m_model;
    const PressEnding *m_obstacle = nullptr; // which keeps a finger from what is touched
    Held m_held{};
    bool m_is_down = false;
    int m_pulses = 0;
    int m_taps = 0;
    int m_lifted_ms = 0;
    int m_double_clicks = 0;
    QByteArrayList m_history;
};

RandomScreen::RandomScreen(quint32 seed)
    : m_random(seed)
{
    QVector<QWidget *> rows;
    int index = 0;
    for (const TouchSubject &subject : touchSubjects()) {
        // A double tap and a drag have no click.
        if (QByteArray(subject.click) == "tap()" || QByteArray(subject.click) == "sliderReleased()")
            continue;
        add(subject, true, 0);
        rows += m_targets.back()->whole;
        add(subject, false, index++);
    }
    m_screen.addToList(rows, 2, 12, 300);
    for (auto *slider : m_screen.list->findChildren<VexoSlider *>())
        m_screen.list->forwardSliderEvents(slider);
}

void RandomScreen::add(const TouchSubject &subject, bool is_in_list, int index)
{
    auto target = std::make_unique<Target>(subject);
    target->is_in_list = is_in_list;
    if (!is_in_list) {
        target->whole->setParent(m_screen.page);
        target->whole->move(310 + index % 2 * 165, index / 2 * 53);
        target->whole->setFixedSize(160, 50);
    }
    const bool is_of_part = target->touched->metaObject()->indexOfSignal(subject.click) >= 0;
    target->clicks = spyOn(is_of_part ? target->touched : target->whole, subject.click);
    if (target->ticks)
        target->pulses = std::make_unique<QSignalSpy>(target->ticks, &QAction::triggered);
    m_targets.push_back(std::move(target));
}

void RandomScreen::note(const QByteArray &line)
{
    m_history += QByteArray::number(virtualclock::ms()) + ' ' + line;
    if (m_history.size() > 25)
        m_history.removeFirst();
}

bool RandomScreen::isResting() const
{
    const auto lists = m_screen.findChildren<VexoVerticalScrollArea *>();
    return std::all_of(lists.begin(), lists.end(), [](VexoVerticalScrollArea *list) {
        return list->getScroller()->state() == QScroller::Inactive;
    });
}

void RandomScreen::reveal(const Target &target)
{
    if (auto *column = target.whole->findChild<VexoVerticalScrollArea *>())
        column->scrollToTop();
    if (target.is_in_list)
        m_screen.list->ensureWidgetVisible(target.touched, 0, 30 + random(100));
}

void RandomScreen::step()
{
    if (!m_finger) {
        m_finger = std::make_unique<Finger>(&m_screen);
        m_held = { &m_screen, m_finger.get(), nullptr };
        m_screen.windowHandle()->installEventFilter(this);
    }
    const Messages ignored; // of the offscreen platform, which cannot grab and raise
    if (m_is_down)
        stepWithFingerDown();
    else
        stepWithFingerUp();
}

void RandomScreen::stepWithFingerUp()
{
    Target *target = m_targets[size_t(random(int(m_targets.size())))].get();
    const int choice = random(100);
    if (choice < 15)
        pass(10 + random(400));
    else if (choice < 20)
        clickRight();
    else if (m_obstacle && choice < 80)
        removeObstacle();
    else if (!m_obstacle && choice < 28)
        putObstacle(target);
    else
        press(target);
}

void RandomScreen::stepWithFingerDown()
{
    const int choice = random(100);
    // Until it is lifted: a list holds the press back, and would not know.
    const bool is_lasting = isObstacle(PressEnding::WholePage) || isObstacle(PressEnding::OnePart);
    if (choice < 35)
        lift();
    else if (choice < 55)
        move(QPoint(random(3) - 1, random(3) - 1));
    else if (choice < 65)
        move(QPoint(0, m_model.is_up ? -far_px - 10 : far_px + 10));
    else if (choice < 88)
        pass(10 + random(400));
    else if (choice < 91)
        clickRight();
    else if (!m_obstacle)
        putObstacle(m_model.armed);
    else if (!is_lasting)
        removeObstacle();
}

// Which can be touched.
Target *RandomScreen::targetAt(const QPoint &at) const
{
    const QWidget *widget = m_screen.childAt(at);
    for (const auto &target : m_targets) {
        if (target->touched == widget && widget->isEnabled())
            return target.get();
    }
    return nullptr;
}

void RandomScreen::press(Target *target)
{
    if (!m_obstacle && random(4) > 0) {
        for (int i = 0; i < 100 && !isResting(); ++i)
            virtualclock::pass(50);
    }
    const bool is_resting = isResting();
    if (is_resting && !m_obstacle)
        reveal(*target);
    if (virtualclock::ms() - m_lifted_ms <= 40)
        virtualclock::pass(41); // so soon it would be a bounce, which counts for nothing
    const QPoint at = m_screen.placeOf(target->touched) - QPoint(random(4), random(4));
    Target *hit = !m_obstacle || isObstacle(PressEnding::OnePart) ? targetAt(at) : nullptr;
    note("press " + (hit ? nameOf(*hit) : "nothing") + (is_resting ? "" : ", moving"));
    m_model = Model();
    m_model.armed = hit;
    m_model.is_unsure = !is_resting;
    m_model.is_up = random(2) != 0;
    m_model.may_pulse = m_model.armed;
    m_is_down = true;
    m_double_clicks = 0;
    m_finger->press(at);
    m_model.is_double = m_double_clicks > 0;
    if (isObstacle(PressEnding::PassingCover) && !QApplication::activePopupWidget())
        removeObstacle(); // a touch beside it closes it
}

void RandomScreen::move(const QPoint &way)
{
    note("move " + QByteArray::number(way.x()) + ',' + QByteArray::number(way.y()));
    if (m_model.armed && qAbs(m_model.way.x() + way.x()) > 3)
        return;
    m_model.move(way);
    m_finger->move(way);
}

void RandomScreen::lift()
{
    note("lift");
    m_is_down = false;
    if (m_model.armed && !m_model.is_unsure) {
        ++m_model.armed->expected;
        ++m_taps;
    }
    m_finger->lift();
    m_lifted_ms = virtualclock::ms();
    if (m_model.armed && m_model.is_unsure)
        m_model.armed->expected += qBound(0, m_model.armed->excess(), 1);
    m_model.end();
    if (isObstacle(PressEnding::OnePart))
        removeObstacle();
}

void RandomScreen::pass(int ms)
{
    note("pass " + QByteArray::number(ms));
    virtualclock::pass(ms);
}

void RandomScreen::clickRight()
{
    note("right button");
    m_model.end();
    m_finger->clickRight();
    QWidget *popup = QApplication::activePopupWidget(); // of a field
    if (popup && popup != m_held.over)
        popup->close();
    if (isObstacle(PressEnding::PassingCover) && !QApplication::activePopupWidget())
        removeObstacle();
}

void RandomScreen::putObstacle(Target *target)
{
    QVector<const PressEnding *> obstacles;
    for (const PressEnding &ending : pressEndings()) {
        if (ending.kind != PressEnding::Passing && (target || ending.kind != PressEnding::OnePart))
            obstacles += &ending;
    }
    m_obstacle = obstacles.at(random(obstacles.size()));
    note(m_obstacle->name);
    m_model.end();
    m_held.touched = target ? target->touched : nullptr;
    m_obstacle->end(m_held);
    QCoreApplication::processEvents(); // the list lays out
}

void RandomScreen::removeObstacle()
{
    note("no obstacle");
    m_obstacle->undo(m_held);
    m_obstacle = nullptr;
    virtualclock::pass(10); // lays out
}

QByteArray RandomScreen::fault()
{
    QByteArray fault;
    int pulses = 0;
    for (const auto &target : m_targets) {
        if (target->excess() != 0)
            fault += nameOf(*target) + ": " + QByteArray::number(target->excess())
                + " clicks too many; ";
        auto *button = qobject_cast<QAbstractButton *>(target->touched);
        if (!m_is_down && button && button->isDown() && !button->isChecked())
            fault += nameOf(*target) + " is down; ";
        pulses += target->pulses ? target->pulses->count() : 0;
    }
    if (!m_model.may_pulse && !m_model.is_unsure && pulses != m_pulses)
        fault += "pulses";
    m_pulses = pulses;
    return fault.isEmpty() ? fault : fault + "\n" + m_history.join('\n');
}

} // namespace

/// Every class under a finger that does what it likes. HOXQ_TOUCH_EVENTS and HOXQ_TOUCH_SEED make
/// a longer and another run.
class TestRandomTouch : public VirtualTimeTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void noClickIsLostDoubledOrUnwanted();

private:
    const PanelScale m_scale{ 4, 4 };
};

void TestRandomTouch::noClickIsLostDoubledOrUnwanted()
{
    qRegisterMetaType<QMouseEvent *>("QMouseEvent*");
    const int seed = asked("HOXQ_TOUCH_SEED", 1);
    const int events = asked("HOXQ_TOUCH_EVENTS", 5000);
    RandomScreen screen{ quint32(seed) };
    QVERIFY(screen.appear());
    for (int i = 0; i < events; ++i) {
        screen.step();
        const QByteArray fault = screen.fault();
        QVERIFY2(fault.isEmpty(),
            "seed " + QByteArray::number(seed) + ", event " + QByteArray::number(i) + ": " + fault);
    }
    QVERIFY2(screen.taps() > events / 20, QByteArray::number(screen.taps()));
}

QTEST_MAIN(TestRandomTouch)
#include "tst_randomtouch.moc"
