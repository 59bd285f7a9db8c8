// SPDX-License-Identifier: MIT
#include "support/colorbutton.h"
#include "support/virtualclock.h"

#include <ActiveButton>

#include <QAccessible>
#include <QButtonGroup>
#include <QLoggingCategory>
#include <QRandomGenerator>

using namespace vexo::hox::qt::ui;

namespace {

const QString DEFAULT = QLatin1String(ActiveButton::DEFAULT_STATE_NAME);
const QString CLICKED = QLatin1String(ActiveButton::CLICKED_STATE_NAME);
const QString A = "A";
const QString B = "B";
const QString C = "C";
const QString RED = "#ff0000";
const QString GREEN = "#00ff00";
const QString BLUE = "#0000ff";
const QString DARK = "#102030";

using Button = ColorButton<ActiveButton>;

void addStates(ActiveButton *button)
{
    button->addIcon(A, RED);
    button->addIcon(B, GREEN);
    button->addIcon(C, BLUE);
}

/// One tick, without waiting for the clock.
void tick(QTimer *timer)
{
    QVERIFY(QMetaObject::invokeMethod(timer, "timeout"));
}

/// Notes in which order the hooks are called.
class Hooked : public Button
{
public:
    QIcon compute(const QString &file) override
    {
        calls += "compute " + file;
        return Button::compute(file);
    }
    QIcon generateInverseIcon(const QIcon &icon) override
    {
        calls += "invert " + colorOf(icon);
        return Button::generateInverseIcon(icon);
    }
    void setState(const QString &state) override
    {
        calls += "state " + state;
        Button::setState(state);
    }
    void createMissingInverseIcons() override
    {
        calls += "missing";
        Button::createMissingInverseIcons();
    }
    void updateStateVisualization(bool checked) override
    {
        calls += checked ? "checked" : "unchecked";
        Button::updateStateVisualization(checked);
    }
    bool inverseState() const override { return is_inverse; }
    void timerEvent() override
    {
        calls += "tick";
        Button::timerEvent();
    }

    QString takeCalls()
    {
        QString text = calls.join(", ");
        calls.clear();
        return text;
    }

    QStringList calls;
    bool is_inverse = false;
};

} // namespace

class TestActiveButton : public VirtualTimeTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void generatedIconInvertsColoursAndKeepsAlpha();
    void hooksAreCalledThroughTheVirtualTable();
    void toggleIsReportedOnce_data();
    void toggleIsReportedOnce();
    void blinkAlternatesInStep();
    void blinkNeedsBothIcons();
    void oneShotEndsOnTheSecondIcon();
    void lastCallHolds();
    void isNamedForAssistiveTechnology();
};

void TestActiveButton::generatedIconInvertsColoursAndKeepsAlpha()
{
    Button button;
    QVERIFY(button.generateInverseIcon(QIcon()).isNull());
    QImage image(40, 20, QImage::Format_ARGB32);
    image.fill(QColor(60, 60, 60));
    image.setPixelColor(1, 0, Qt::transparent);
    image.setPixelColor(2, 0, QColor(255, 0, 0, 128));
    const QIcon icon = button.generateInverseIcon(QIcon(QPixmap::fromImage(image)));
    QCOMPARE(icon.availableSizes(), QList<QSize>{ QSize(40, 20) });
    const QImage inverse = icon.pixmap(40, 20).toImage().convertToFormat(QImage::Format_ARGB32);
    QCOMPARE(inverse.pixelColor(0, 0), QColor(195, 195, 195));
    QCOMPARE(inverse.pixelColor(1, 0).alpha(), 0);
    QCOMPARE(inverse.pixelColor(2, 0), QColor(0, 255, 255, 128));
}

void TestActiveButton::hooksAreCalledThroughTheVirtualTable()
{
    Hooked button;
    button.setCheckable(true);
    button.addIcon(DEFAULT, RED);
    button.addInverseIcon(DEFAULT, DARK);
    QCOMPARE(button.takeCalls(), "compute #ff0000, compute #102030");
    button.addIcon(CLICKED, GREEN);
    button.createMissingInverseIcons();
    QCOMPARE(button.takeCalls(), "compute #00ff00, missing, invert #00ff00");
    button.setChecked(true);
    QCOMPARE(button.takeCalls(), "checked, state CLICKED");
    button.removeIcon(CLICKED);
    button.rerenderAll(true);
    QCOMPARE(button.takeCalls(), "compute #ff0000, compute #102030, missing, state CLICKED");
    button.addIcon(A, RED);
    button.is_inverse = true; // asked through inverseState(), not through the flag
    button.blink(DEFAULT, A);
    QCOMPARE(button.takeCalls(), "compute #ff0000, tick");
    QCOMPARE(colorOf(button.icon()), DARK);
}

void TestActiveButton::toggleIsReportedOnce_data()
{
    QTest::addColumn<QByteArray>("by");
    for (const char *by : { "touch", "call", "group", "keyboard" })
        QTest::newRow(by) << QByteArray(by);
}

void TestActiveButton::toggleIsReportedOnce()
{
    QFETCH(QByteArray, by);
    Button button;
    Button other;
    QButtonGroup group;
    for (Button *each : { &button, &other }) {
        each->setCheckable(true);
        each->addIcon(DEFAULT, RED);
        each->addIcon(CLICKED, GREEN);
        group.addButton(each);
    }
    QSignalSpy changes(&button, &ActiveButton::stateChanged);
    if (by == "touch")
        QTest::mouseClick(&button, Qt::LeftButton);
    else if (by == "keyboard")
        QTest::keyClick(&button, Qt::Key_Space);
    else
        button.setChecked(true);
    if (by == "call")
        button.setChecked(true);
    QCOMPARE(changes, QList<QVariantList>{ { true } });
    QCOMPARE(colorOf(button.icon()), GREEN);
    other.setChecked(true);
    QCOMPARE(changes, (QList<QVariantList>{ { true }, { false } }));
    QCOMPARE(colorOf(button.icon()), RED);
}

void TestActiveButton::blinkAlternatesInStep()
{
    Button left;
    Button right;
    auto timer = std::make_unique<QTimer>();
    for (Button *button : { &left, &right }) {
        addStates(button);
        button->setState(C);
        button->setTimer(nullptr);
        button->setTimer(timer.get());
    }
    left.blink(A, B);
    QCOMPARE(colorOf(left.icon()), RED);
    QCOMPARE(left.currentState(), C);
    right.blink(B, A);
    tick(timer.get());
    QCOMPARE(colorOf(left.icon()), GREEN);
    QCOMPARE(colorOf(right.icon()), RED);
    tick(timer.get());
    QCOMPARE(colorOf(left.icon()), RED);
    left.setState(C);
    tick(timer.get());
    tick(timer.get());
    QCOMPARE(colorOf(left.icon()), BLUE);
    right.setTimer(timer.get()); // ticks twice
    tick(timer.get());
    QCOMPARE(colorOf(right.icon()), GREEN);
    timer.reset();
}

void TestActiveButton::blinkNeedsBothIcons()
{
    QLoggingCategory::setFilterRules("hoxq.B.debug=true");
    Button button;
    addStates(&button);
    button.addInverseIcon("Ü", DARK);
    button.setState(A);
    Messages messages;
    button.blink(B, "Ü");
    button.oneShot("Ü", B);
    button.timerEvent();
    QLoggingCategory::setFilterRules(QString());
    const QStringList expected = { "debug hoxq.B: Blink B <-> Ü", "debug hoxq.B: One shot Ü -> B" };
    QCOMPARE(messages.lines(), expected);
    QCOMPARE(colorOf(button.icon()), RED);
    QCOMPARE(button.currentState(), A);
}

void TestActiveButton::oneShotEndsOnTheSecondIcon()
{
    Button button;
    addStates(&button);
    button.addInverseIcon(B, DARK);
    button.oneShot(A, C);
    virtualclock::pass(500);
    button.oneShot(A, B); // restarts the second
    QCOMPARE(button.currentState(), A);
    QCOMPARE(colorOf(button.inverseIcon()), RED);
    virtualclock::pass(990);
    QCOMPARE(colorOf(button.icon()), RED);
    virtualclock::pass(20);
    QCOMPARE(colorOf(button.icon()), GREEN);
    QCOMPARE(button.currentState(), A);
    QCOMPARE(colorOf(button.inverseIcon()), DARK);
}

// What came before leaves nothing behind, be it a blink, a one-shot or the other icons.
void TestActiveButton::lastCallHolds()
{
    const QStringList states{ A, B, C };
    const QStringList colors{ RED, GREEN, BLUE };
    const QString inverse_only = "inverse only";
    QRandomGenerator random(1);
    Button button;
    addStates(&button);
    for (const QString &state : states + QStringList{ inverse_only })
        button.addInverseIcon(state, DARK);
    for (int step = 0; step < 200; ++step) {
        const bool is_inverse = random.bounded(2) != 0;
        button.setInverseState(is_inverse);
        const QString other = states.at(random.bounded(3));
        const std::function<void()> before[]
            = { [&] { button.blink(other, A); }, [&] { button.oneShot(other, B); },
                  [&] { button.setState(other); }, [&] { button.rerenderAll(true); } };
        before[random.bounded(4)]();
        const int last = random.bounded(3);
        const bool blinks = random.bounded(2) != 0;
        if (blinks)
            button.blink(states.at(last), other);
        else
            button.setState(states.at(last));
        button.setState("unknown");
        virtualclock::pass(1010); // a one-shot of before does not end
        QCOMPARE(colorOf(button.icon()), is_inverse ? DARK : colors.at(last));
        button.timerEvent();
        const QString seen = blinks ? other : states.at(last);
        QCOMPARE(colorOf(button.icon()), is_inverse ? DARK : colors.at(states.indexOf(seen)));
        if (!blinks)
            QCOMPARE(button.currentState(), states.at(last));
    }
    button.setInverseState(false);
    button.oneShot(A, B);
    button.setState(inverse_only); // shows nothing else, but ends it
    virtualclock::pass(1010);
    QCOMPARE(colorOf(button.icon()), RED);
    button.setState(C);
    button.rerenderAll(true);
    QCOMPARE(colorOf(button.icon()), BLUE);
}

void TestActiveButton::isNamedForAssistiveTechnology()
{
    Button button;
    button.setCheckable(true);
    button.setToolTip("Volume");
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&button);
    QCOMPARE(interface->text(QAccessible::Name), "Volume");
    QCOMPARE(interface->role(), QAccessible::CheckBox);
    button.setChecked(true);
    QVERIFY(interface->state().checked);
    button.setToolTip("Mute");
    QCOMPARE(interface->text(QAccessible::Name), "Mute");
    button.setAccessibleName("Speaker");
    button.setToolTip("Other");
    QCOMPARE(interface->text(QAccessible::Name), "Speaker");
}

QTEST_MAIN(TestActiveButton)
#include "tst_activebutton.moc"
