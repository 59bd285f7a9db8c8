// SPDX-License-Identifier: MIT
#include "support/colorbutton.h"
#include "support/testcase.h"

#include <ActiveButton>

#include <QRandomGenerator>
#include <QTest>

using namespace vexo::hox::qt::ui;

namespace {

const QStringList STATES{ QLatin1String(ActiveButton::DEFAULT_STATE_NAME), QStringLiteral("A"),
    QStringLiteral("B") };
const QStringList COLORS{ QStringLiteral("#110000"), QStringLiteral("#001100"),
    QStringLiteral("#000011") };
const QStringList INVERSE_COLORS{ QStringLiteral("#ffaaaa"), QStringLiteral("#aaffaa"),
    QStringLiteral("#aaaaff") };

} // namespace

/// What holds after any sequence of calls.
class TestActiveButtonModel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anySequenceKeepsItsPromises_data();
    void anySequenceKeepsItsPromises();

private:
    struct Played
    {
        explicit Played(quint32 seed)
            : random(seed)
        {
            for (int i = 0; i < STATES.size(); ++i) {
                button.addIcon(STATES.at(i), COLORS.at(i));
                button.addInverseIcon(STATES.at(i), INVERSE_COLORS.at(i));
            }
        }

        int any() { return random.bounded(STATES.size()); }
        QString shown() { return colorOf(button.icon()); }
        QString colorOfState(int state) const
        {
            return (is_inverse ? INVERSE_COLORS : COLORS).at(state);
        }

        bool settles()
        {
            const int state = any();
            button.setState(STATES.at(state));
            button.setState(QStringLiteral("unknown")); // is ignored
            button.timerEvent(); // a steady state does not blink
            return button.currentState() == STATES.at(state) && shown() == colorOfState(state);
        }

        bool blinks()
        {
            const int first = any();
            const int second = any();
            button.blink(STATES.at(first), STATES.at(second));
            bool is_right = shown() == colorOfState(first);
            for (const int due : { second, first, second }) {
                button.timerEvent();
                is_right = is_right && shown() == colorOfState(due);
            }
            return is_right;
        }

        bool flashesOnce()
        {
            const int first = any();
            const int second = any();
            button.oneShot(STATES.at(first), STATES.at(second));
            const bool is_right = shown() == colorOfState(first);
            button.timeout();
            button.timerEvent();
            return is_right && shown() == colorOfState(second);
        }

        bool flips()
        {
            is_inverse = !is_inverse;
            button.setInverseState(is_inverse);
            return settles();
        }

        bool rerenders()
        {
            settles();
            const QString before = shown();
            button.rerenderAll(true);
            return shown() == before;
        }

        ColorButton<ActiveButton> button;
        QRandomGenerator random;
        bool is_inverse = false;
    };
};

void TestActiveButtonModel::anySequenceKeepsItsPromises_data()
{
    QTest::addColumn<uint>("seed");
    for (uint seed = 1; seed <= 6; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void TestActiveButtonModel::anySequenceKeepsItsPromises()
{
    QFETCH(uint, seed);
    static bool (Played::*const promises[])() = { &Played::settles, &Played::blinks,
        &Played::flashesOnce, &Played::flips, &Played::rerenders };
    Played played(seed);
    for (int step = 0; step < 1000; ++step) {
        const int promise = played.random.bounded(int(std::size(promises)));
        QVERIFY2((played.*promises[promise])(),
            qPrintable(QStringLiteral("step %1, promise %2").arg(step).arg(promise)));
    }
}

QTEST_MAIN(TestActiveButtonModel)
#include "tst_activebuttonmodel.moc"
