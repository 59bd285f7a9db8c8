#include "support/onscreen.h"
#include "support/testcase.h"
#include "ui/buttons/measuredpushbutton.h"
#include "ui/buttons/vexofunctionbutton.h"
#include "ui/buttons/vexopushbutton.h"
#include "ui/text/vexolabel.h"
#include "ui/text/vexolabeledcontainer.h"

#include <QPointer>

#include <functional>

using namespace vexo::hox::qt::ui;

namespace {

using Make = std::function<QWidget *(QWidget *parent, QWidget *buddy)>;

template <typename Owner>
QWidget *withBuddy(QWidget *parent, QWidget *buddy)
{
    auto *owner = new Owner(parent);
    owner->addVisibleBuddy(buddy);
    return owner;
}

/// Deletes a widget when that gets a certain event.
class Deleter : public QObject
{
public:
    Deleter(QWidget *widget, QEvent::Type when)
        : m_when(when)
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != m_when)
            return false;
        delete watched;
        return true;
    }

private:
    const QEvent::Type m_when;
};

} // namespace

Q_DECLARE_METATYPE(Make)

class TestDeletions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ownerOfBuddiesMayGoWhileItIsHidden_data();
    void ownerOfBuddiesMayGoWhileItIsHidden();
};

void TestDeletions::ownerOfBuddiesMayGoWhileItIsHidden_data()
{
    QTest::addColumn<Make>("make");
    QTest::newRow("MeasuredPushButton") << Make(withBuddy<MeasuredPushButton>);
    QTest::newRow("VexoFunctionButton") << Make(withBuddy<VexoFunctionButton>);
    QTest::newRow("VexoLabel") << Make(withBuddy<VexoLabel>);
    QTest::newRow("VexoLabeledContainer") << Make(withBuddy<VexoLabeledContainer>);
    QTest::newRow("VexoPushButton") << Make(withBuddy<VexoPushButton>);
}

// The last that a widget hears of being hidden, still in setVisible().
void TestDeletions::ownerOfBuddiesMayGoWhileItIsHidden()
{
    QFETCH(Make, make);
    QWidget window;
    QWidget buddy(&window);
    const QPointer<QWidget> owner = make(&window, &buddy);
    window.show();
    owner->setVisible(true);
    QVERIFY(!buddy.isHidden());
    Deleter deleter(owner, QEvent::HideToParent);
    owner->setVisible(false);
    QVERIFY(!owner);
    QVERIFY(!buddy.isHidden());
}

QTEST_MAIN(TestDeletions)
#include "tst_deletions.moc"
