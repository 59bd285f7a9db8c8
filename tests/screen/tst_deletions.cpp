// SPDX-License-Identifier: MIT
#include "support/onscreen.h"
#include "support/testcase.h"
#include "ui/buttons/measuredpushbutton.h"
#include "ui/buttons/vexocenteredvectorbutton.h"
#include "ui/buttons/vexofunctionbutton.h"
#include "ui/buttons/vexohorizontaltexticonbutton.h"
#include "ui/buttons/vexoiconbutton.h"
#include "ui/buttons/vexokeyboardbutton.h"
#include "ui/buttons/vexopushbutton.h"
#include "ui/input/vexolineedit.h"
#include "ui/scrolling/vexoverticalbuttonscrollarea.h"
#include "ui/scrolling/vexoverticalscrollarea.h"
#include "ui/text/vexohorizontallabelwidget.h"
#include "ui/text/vexolabel.h"
#include "ui/text/vexolabeledcontainer.h"

#include <QAction>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

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

/// Memory that takes the place of what was deleted before, as other objects of a screen would.
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
    void buttonLeavesNoTraceInItsSignal_data();
    void buttonLeavesNoTraceInItsSignal();
    void partOfATileMayGo();
    void textOfARowMayGo();
    void boxOfARowMayGo();
    void textOfALabelWidgetMayGo();
    void actionAtASideMayGo_data();
    void actionAtASideMayGo();
    void jumpBarMayGoInItsLetter();
    void columnOfAJumpBarMayGo_data();
    void columnOfAJumpBarMayGo();
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

void TestDeletions::buttonLeavesNoTraceInItsSignal_data()
{
    QTest::addColumn<QAbstractButton *>("victim");
    QTest::addColumn<QByteArray>("signal");
    for (const char *signal : { SIGNAL(pressed()), SIGNAL(released()), SIGNAL(clicked(bool)) }) {
        const auto row = [=](QAbstractButton *button) {
            const char *name = button->metaObject()->className();
            QTest::addRow("%s, %s", name, signal + 1) << button << QByteArray(signal);
        };
        row(new MeasuredPushButton);
        row(new VexoIconButton);
        row(new VexoKeyboardButton);
        row(new VexoPushButton);
        row(new VexoHorizontalTextIconButton);
    }
}

// The toolkit, which writes to what it has, is built without sanitizers.
void TestDeletions::buttonLeavesNoTraceInItsSignal()
{
    QFETCH(QAbstractButton *, victim);
    QFETCH(QByteArray, signal);
    const QPointer<QAbstractButton> button(victim);
    QWidget window;
    window.resize(200, 100);
    button->setParent(&window);
    button->resize(window.size());
    window.show();
    settle();
    QTimer relay;
    relay.setInterval(0);
    std::unique_ptr<Successor> successor;
    connect(button, signal, &relay, SIGNAL(timeout()), Qt::DirectConnection);
    connect(&relay, &QTimer::timeout, &relay, [&] {
        delete button;
        successor = std::make_unique<Successor>();
    });
    const QPoint at = button->geometry().center();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, at);
    QVERIFY(!button);
    QVERIFY(successor->isUntouched());
}

void TestDeletions::partOfATileMayGo()
{
    QWidget window;
    window.resize(400, 400);
    VexoCenteredVectorButton tile(&window);
    window.show();
    settle();
    delete tile.getButtonInstance();
    QCOMPARE(tile.getButtonInstance(), nullptr);
    const auto labels = tile.findChildren<QLabel *>();
    qDeleteAll(labels);
    tile.setText(QStringLiteral("gone"));
    tile.setSubtext(QStringLiteral("gone"));
    tile.setIconPath(QStringLiteral(":/VexoIconGeneralEnter"));
    tile.setIconSizeInMm(5);
    tile.setTextFontSizeInPt(8);
    tile.setSubtextFontSizeInPt(8);
    settle();
    QCOMPARE(wrongPixels(window), QRect());
    QCOMPARE(tile.text() + tile.subtext(), QString());

    const QPointer<VexoCenteredVectorButton> victim = new VexoCenteredVectorButton;
    connect(victim->getButtonInstance(), &ActiveVectorButton::sizeChanged, [=] { delete victim; });
    victim->setIconSizeInMm(5);
    QVERIFY(!victim);
}

void TestDeletions::boxOfARowMayGo()
{
    QWidget window;
    window.resize(400, 100);
    VexoFunctionButton row(&window);
    row.resize(window.size());
    window.show();
    settle();
    const QSignalSpy clicks(&row, &QAbstractButton::clicked);
    delete row.getButtonInstance();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(50, 50));
    QCOMPARE(clicks.size(), 0);
    settle();
    QCOMPARE(wrongPixels(window), QRect());
}

void TestDeletions::textOfARowMayGo()
{
    QWidget window;
    VexoFunctionButton row(&window, VexoFunctionButton::ActionType);
    window.show();
    settle();
    delete row.getLabelInstance();
    QCOMPARE(row.getLabelInstance(), nullptr);
    row.setText(QStringLiteral("gone"));
    row.setMmIndent(2);
    row.setTextFontsizeInPt(8);
    row.setFontWeight(QFont::Bold);
    row.setTextColor(Qt::red);
    row.setEnabled(false);
    settle();
    QCOMPARE(wrongPixels(window), QRect());
    QCOMPARE(row.text(), QString());
}

void TestDeletions::textOfALabelWidgetMayGo()
{
    QWidget window;
    window.resize(200, 100);
    VexoHorizontalLabelWidget row(&window);
    row.setLeftLabelMmWidth(5);
    row.setRightLabelMmWidth(5);
    window.show();
    settle();
    delete row.leftLabel();
    QCOMPARE(row.leftLabel(), nullptr);
    row.setLeftLabelText(QStringLiteral("gone"));
    row.setRightLabelText(QStringLiteral("there"));
    row.setTextColor(Qt::red);
    row.setPtFontSize(8);
    row.setMmIndent(2);
    row.setLeftLabelMmWidth(7);
    row.setMmHeight(5);
    settle();
    QCOMPARE(wrongPixels(window), QRect());
    QCOMPARE(row.rightLabel()->text(), QStringLiteral("there"));
    QCOMPARE(row.rightLabel()->height(), row.height());
    delete row.rightLabel();
    row.setRightLabelText(QStringLiteral("gone"));
    row.setRightLabelMmWidth(7);
    row.setBackgroundColor(Qt::blue);
}

void TestDeletions::actionAtASideMayGo_data()
{
    QTest::addColumn<bool>("is_leading");
    QTest::addColumn<int>("index"); // of what is deleted; 2: the widget that both show
    for (const bool is_leading : { true, false }) {
        const char *side = is_leading ? "leading" : "trailing";
        QTest::addRow("first %s action", side) << is_leading << 0;
        QTest::addRow("second %s action", side) << is_leading << 1;
        QTest::addRow("%s widget", side) << is_leading << 2;
    }
}

void TestDeletions::actionAtASideMayGo()
{
    QFETCH(bool, is_leading);
    QFETCH(int, index);
    QWidget window;
    VexoLineEdit field(&window);
    for (int i = 0; i < 2; ++i) {
        if (is_leading)
            field.enableLeadingLabelAction();
        else
            field.enableTrailingButtonAction();
    }
    window.show();
    settle();
    if (index < 2)
        delete field.actions().at(index);
    else if (is_leading)
        delete field.findChild<QLabel *>();
    else
        delete field.findChild<VexoIconButton *>();
    QVERIFY(field.sizeHint().isValid());
    field.resize(200, field.height());
    field.setMmLeadingIconSize(QSizeF(3, 3));
    field.setTrailingIcon(QIcon());
    settle();
    QCOMPARE(wrongPixels(window), QRect());
    qDeleteAll(field.actions());
    QVERIFY(field.sizeHint().isValid());
}

// A tap that the real scroller of the bar sees.
void TestDeletions::jumpBarMayGoInItsLetter()
{
    QWidget window;
    window.resize(100, 400);
    const QPointer<VexoVerticalButtonScrollArea> bar = new VexoVerticalButtonScrollArea(&window);
    bar->resize(60, 400);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    settle();
    bar->setButtonConnection(&window, [bar] { bar->deleteLater(); });
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(30, 150));
    QTRY_VERIFY(!bar);
    settle();
}

void TestDeletions::columnOfAJumpBarMayGo_data()
{
    QTest::addColumn<bool>("is_area");
    QTest::newRow("the scroll area") << true;
    QTest::newRow("its content") << false;
}

void TestDeletions::columnOfAJumpBarMayGo()
{
    QFETCH(bool, is_area);
    QWidget window;
    window.resize(100, 400);
    VexoVerticalButtonScrollArea bar(&window);
    bar.resize(60, 400);
    window.show();
    settle();
    if (is_area)
        delete bar.verticalScrollArea();
    else
        delete bar.verticalScrollArea()->takeWidget();
    QCOMPARE(bar.verticalScrollArea() == nullptr, is_area);
    bar.setType(VexoVerticalButtonScrollArea::Numbers);
    bar.setButtonConnection(&bar, [] {});
    bar.findChild<QPushButton *>(QStringLiteral("downButton"))->click();
    QCOMPARE(bar.findChildren<QPushButton *>(QStringLiteral("letterButton")).size(), 0);
    settle();
    QCOMPARE(wrongPixels(window), QRect());
}

QTEST_MAIN(TestDeletions)
#include "tst_deletions.moc"
