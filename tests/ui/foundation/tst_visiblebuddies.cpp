// SPDX-License-Identifier: MIT
#include "support/testcase.h"
#include "ui/foundation/visiblebuddies_p.h"

#include <MeasuredPushButton>
#include <VexoFunctionButton>
#include <VexoLabel>
#include <VexoLabeledContainer>
#include <VexoPushButton>

#include <QPointer>

using namespace vexo::hox::qt::ui;

/// Calls back on each setVisible() and keeps the order of the calls.
class Buddy : public QWidget
{
public:
    explicit Buddy(QStringList *calls, const char *name = "")
        : m_calls(calls)
        , m_name(QLatin1String(name))
    {
    }

    void setVisible(bool visible) override
    {
        m_calls->append(m_name + (visible ? QLatin1Char('+') : QLatin1Char('-')));
        QWidget::setVisible(visible);
        if (then)
            then(visible);
    }

    std::function<void(bool)> then;

private:
    QStringList *const m_calls;
    const QString m_name;
};

/// Deletes a widget at the last that it hears of being hidden, still in setVisible().
class Deleter : public QObject
{
public:
    explicit Deleter(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::HideToParent)
            return false;
        delete watched;
        return true;
    }
};

/// Whether a buddy is seen (+) or hidden (-): added, the owner shown, hidden, shown; no buddy any
/// more, the owner hidden; one again, the owner deleted while it is hidden.
template <typename Owner>
QByteArray storyOfABuddy()
{
    QWidget window;
    const QPointer<Owner> owner = new Owner(&window);
    QWidget buddy(&window);
    QByteArray story;
    const auto note = [&] { story += buddy.isVisible() ? '+' : '-'; };
    window.show();
    owner->addVisibleBuddy(nullptr);
    owner->addVisibleBuddy(&buddy);
    note();
    for (const bool is_shown : { true, false, true }) {
        owner->setVisible(is_shown);
        note();
    }
    owner->clearVisibleBuddies();
    owner->hide();
    note();
    owner->addVisibleBuddy(&buddy);
    owner->show();
    const Deleter deleter(owner);
    owner->hide();
    note();
    return owner ? "still there" : story;
}

class TestVisibleBuddies : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void followsInTheOrderOfAdding();
    void listMayChangeDuringARound();
    void ownerMayGoDuringARound();
    void mutualBuddiesMakeOneRound();
    void followEachOwner();
};

void TestVisibleBuddies::followsInTheOrderOfAdding()
{
    QWidget owner;
    QStringList calls;
    Buddy first(&calls, "a");
    Buddy last(&calls, "c");
    VisibleBuddies buddies;
    buddies.add(&first);
    buddies.add(nullptr);
    {
        Buddy gone(&calls, "b");
        buddies.add(&gone);
    }
    buddies.add(&last);
    buddies.add(&first);
    buddies.setVisible(&owner, true, [] {});
    QCOMPARE(calls.join(QLatin1Char(' ')), "a+ c+ a+");
    buddies.setVisible(&owner, false, [] {});
    QVERIFY(first.isHidden() && last.isHidden());
    calls.clear();
    buddies.clear();
    buddies.setVisible(&owner, true, [] {});
    QCOMPARE(calls, QStringList());
}

void TestVisibleBuddies::listMayChangeDuringARound()
{
    QWidget owner;
    QStringList calls;
    Buddy first(&calls, "a");
    Buddy added(&calls, "x");
    auto second = std::make_unique<Buddy>(&calls, "b");
    VisibleBuddies buddies;
    buddies.add(&first);
    buddies.add(second.get());
    first.then = [&](bool) {
        second.reset();
        buddies.clear();
        buddies.add(&added);
    };
    buddies.setVisible(&owner, true, [] {});
    QCOMPARE(calls.join(QLatin1Char(' ')), "a+");
    buddies.setVisible(&owner, true, [] {});
    QCOMPARE(calls.join(QLatin1Char(' ')), "a+ x+");
}

void TestVisibleBuddies::ownerMayGoDuringARound()
{
    QWidget owner;
    QStringList calls;
    Buddy buddy(&calls, "a");
    auto buddies = std::make_unique<VisibleBuddies>();
    buddies->add(&buddy);
    buddy.then = [&](bool) { buddies.reset(); };
    buddies->setVisible(&owner, true, [] {});
    QCOMPARE(calls.join(QLatin1Char(' ')), "a+");
}

void TestVisibleBuddies::mutualBuddiesMakeOneRound()
{
    QStringList calls;
    Buddy left(&calls, "l");
    Buddy right(&calls, "r");
    VisibleBuddies of_left;
    VisibleBuddies of_right;
    of_left.add(&right);
    of_right.add(&left);
    left.then = [&](bool visible) { of_left.setVisible(&left, visible, [] {}); };
    right.then = [&](bool visible) { of_right.setVisible(&right, visible, [] {}); };
    left.setVisible(true);
    QVERIFY(!left.isHidden() && !right.isHidden());
    QCOMPARE(calls.join(QLatin1Char(' ')), "l+ r+ l+");
    left.setVisible(false);
    QVERIFY(left.isHidden() && right.isHidden());
}

void TestVisibleBuddies::followEachOwner()
{
    QCOMPARE(storyOfABuddy<MeasuredPushButton>(), QByteArray("++-+++"));
    QCOMPARE(storyOfABuddy<VexoPushButton>(), QByteArray("++-+++"));
    // These hide it when it is added.
    QCOMPARE(storyOfABuddy<VexoFunctionButton>(), QByteArray("-+-+++"));
    QCOMPARE(storyOfABuddy<VexoLabel>(), QByteArray("-+-+++"));
    QCOMPARE(storyOfABuddy<VexoLabeledContainer>(), QByteArray("-+-+++"));
    QWidget buddy;
    QCOMPARE(VexoLabel().addVisibleBuddy(&buddy), &buddy);
    QCOMPARE(VexoLabeledContainer().addVisibleBuddy(&buddy), &buddy);
}

QTEST_MAIN(TestVisibleBuddies)
#include "tst_visiblebuddies.moc"
