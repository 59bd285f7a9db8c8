// SPDX-License-Identifier: MIT
#include "support/colorbutton.h"
#include "support/testcase.h"

#include <ActiveButton>

#include <QMap>
#include <QRandomGenerator>
#include <QTest>

using namespace vexo::hox::qt::ui;

namespace {

const QString DEFAULT = QLatin1String(ActiveButton::DEFAULT_STATE_NAME);
const QString CLICKED = QLatin1String(ActiveButton::CLICKED_STATE_NAME);

QString invert(const QString &color)
{
    const QColor c(color);
    return QColor(255 - c.red(), 255 - c.green(), 255 - c.blue()).name();
}

/// What a button is expected to do, in colours instead of icons.
struct Model
{
    enum Mode { Steady, OneShot, FirstDue, SecondDue };

    QMap<QString, QString> icons, files, inverse_icons, inverse_files;
    QString shown, current, inverse_of, first, second;
    Mode mode = Steady;
    bool inverse = false, checked = false;

    QString inverseObject(const QString &state) const
    {
        return inverse_icons.contains(state) ? inverse_icons[state] : icons.value(state);
    }

    QString inverseIcon() const
    {
        return inverseObject(inverse_of.isEmpty() ? current : inverse_of);
    }

    bool show(const QString &state)
    {
        const QString color = inverse ? inverseObject(state) : icons.value(state);
        if (color.isEmpty())
            return false;
        shown = color;
        inverse_of = state;
        return true;
    }

    void addIcon(const QString &state, const QString &file)
    {
        if (!icons.contains(state))
            icons[state] = file;
        files[state] = file;
        if (state == DEFAULT) {
            shown = icons[state];
            current = state;
        }
    }

    void setState(const QString &state)
    {
        if ((inverse && inverse_icons.contains(state)) || icons.contains(state)) {
            show(state);
            mode = Steady;
            current = state;
        } else if (inverse_icons.contains(state)) {
            inverse_of = current = state;
        }
    }

    void createMissing()
    {
        for (auto i = icons.cbegin(); i != icons.cend(); ++i) {
            if (!inverse_icons.contains(i.key()) && !inverse_files.contains(i.key()))
                inverse_icons[i.key()] = invert(i.value());
        }
    }

    void blink(const QString &state1, const QString &state2)
    {
        if (!icons.contains(state1) || !icons.contains(state2))
            return;
        first = state1;
        second = state2;
        mode = FirstDue;
        tick();
    }

    void oneShot(const QString &state1, const QString &state2)
    {
        if (!icons.contains(state1) || !icons.contains(state2))
            return;
        show(state1);
        current = first = state1;
        second = state2;
        mode = OneShot;
    }

    void tick()
    {
        inverse_of.clear();
        if (mode == FirstDue && show(first))
            mode = SecondDue;
        else if (mode == SecondDue && show(second))
            mode = FirstDue;
    }

    void rerender(bool create)
    {
        for (auto i = files.cbegin(); i != files.cend(); ++i)
            icons[i.key()] = i.value();
        for (auto i = inverse_files.cbegin(); i != inverse_files.cend(); ++i)
            inverse_icons[i.key()] = i.value();
        if (create)
            createMissing();
        setState(current);
    }
};

/// Does the same to a button and to its model.
class Pair
{
public:
    explicit Pair(quint32 seed)
        : m_random(seed)
    {
        button.setCheckable(true);
    }

    void step()
    {
        static void (Pair::*const operations[])() = { &Pair::addIcon, &Pair::addInverseIcon,
            &Pair::setState, &Pair::blink, &Pair::oneShot, &Pair::tick, &Pair::expire, &Pair::flip,
            &Pair::remove, &Pair::create, &Pair::rerender, &Pair::touch };
        (this->*operations[m_random.bounded(int(std::size(operations)))])();
    }

    QString expected() const { return text(model.current, model.shown, model.inverseIcon()); }

    QString actual()
    {
        return text(button.currentState(), colorOf(button.icon()), colorOf(button.inverseIcon()));
    }

    ColorButton<ActiveButton> button;
    Model model;

private:
    static QString text(const QString &state, const QString &shown, const QString &inverse)
    {
        return QStringLiteral("%1 shows %2, inverse %3").arg(state, shown, inverse);
    }

    QString anyState()
    {
        static const QStringList states
            = { DEFAULT, CLICKED, QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("?") };
        return states.at(m_random.bounded(states.size()));
    }

    QString anyColor() { return QColor(QRgb(m_random.bounded(0x1000000))).name(); }

    void addIcon()
    {
        const QString state = anyState();
        if (state == QStringLiteral("?"))
            return;
        const QString color = anyColor();
        button.addIcon(state, color);
        model.addIcon(state, color);
    }

    void addInverseIcon()
    {
        const QString state = anyState();
        const QString color = anyColor();
        button.addInverseIcon(state, color);
        model.inverse_icons[state] = model.inverse_files[state] = color;
    }

    void setState()
    {
        const QString state = anyState();
        button.setState(state);
        model.setState(state);
    }

    void blink()
    {
        const QString state1 = anyState();
        const QString state2 = anyState();
        button.blink(state1, state2);
        model.blink(state1, state2);
    }

    void oneShot()
    {
        const QString state1 = anyState();
        const QString state2 = anyState();
        button.oneShot(state1, state2);
        model.oneShot(state1, state2);
    }

    void tick()
    {
        button.timerEvent();
        model.tick();
    }

    void expire()
    {
        button.timeout();
        model.show(model.second);
        model.mode = Model::Steady;
    }

    void flip()
    {
        model.inverse = !model.inverse;
        button.setInverseState(model.inverse);
    }

    void remove()
    {
        const QString state = anyState();
        const bool all = m_random.bounded(8) == 0;
        all ? button.removeIcons() : button.removeIcon(state);
        for (auto *map : { &model.icons, &model.files, &model.inverse_icons }) {
            if (all)
                map->clear();
            else
                map->remove(state);
        }
    }

    void create()
    {
        button.createMissingInverseIcons();
        model.createMissing();
    }

    void rerender()
    {
        const bool create = m_random.bounded(2) == 0;
        button.rerenderAll(create);
        model.rerender(create);
    }

    void touch()
    {
        QTest::mouseClick(&button, Qt::LeftButton);
        model.checked = !model.checked;
        model.setState(model.checked ? CLICKED : DEFAULT);
    }

    QRandomGenerator m_random;
};

} // namespace

class TestActiveButtonModel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anySequenceFollowsTheModel_data();
    void anySequenceFollowsTheModel();
};

void TestActiveButtonModel::anySequenceFollowsTheModel_data()
{
    QTest::addColumn<uint>("seed");
    for (uint seed = 1; seed <= 6; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void TestActiveButtonModel::anySequenceFollowsTheModel()
{
    QFETCH(uint, seed);
    Pair pair(seed);
    for (int step = 0; step < 3000; ++step) {
        pair.step();
        QVERIFY2(pair.actual() == pair.expected(),
            qPrintable(QStringLiteral("step %1: %2; expected: %3")
                           .arg(step)
                           .arg(pair.actual(), pair.expected())));
    }
}

QTEST_MAIN(TestActiveButtonModel)
#include "tst_activebuttonmodel.moc"
