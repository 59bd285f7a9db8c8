// SPDX-License-Identifier: MIT
#include "support/onscreen.h"
#include "support/paintcounter.h"
#include "support/testcase.h"

#include <PageStack>

#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <stdexcept>

using vexo::hox::qt::panel::PageStack;

namespace {

const QString A = QStringLiteral("a");
const QString B = QStringLiteral("b");
const QString C = QStringLiteral("c");

int alive = 0;

class TestPage : public QWidget
{
public:
    TestPage() { ++alive; }
    ~TestPage() override { --alive; }
};

QWidget *createPage()
{
    return new TestPage;
}

void addPages(PageStack *stack, PageStack::Life life = PageStack::Kept)
{
    for (const QString &name : { A, B, C })
        stack->addPage(name, createPage, life);
}

} // namespace

class TestPageStack : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void pageIsMadeWhenItIsFirstShown();
    void wayBackIsRemembered();
    void refusedPageChangesNothing_data();
    void refusedPageChangesNothing();
    void replacedPageGoesWhenItIsLeft();
    void pageIsAsLargeAsTheStack();
    void pageMayOpenAnotherFromItsOwnSlot();
    void stackMayBeDeletedInItsSignal();
    void focusGoesToTheStack();
    void changePaintsThePageOnce();
    void slideEndsAndLeavesNothingBehind();
    void memoryIsFlat();
};

void TestPageStack::pageIsMadeWhenItIsFirstShown()
{
    alive = 0;
    PageStack stack;
    stack.addPage(A, createPage);
    stack.addPage(B, createPage, PageStack::Dropped);
    QCOMPARE(alive, 0);
    QVERIFY(stack.open(A) && stack.open(B));
    QCOMPARE(alive, 2);
    QCOMPARE(stack.page()->accessibleName(), B);
    stack.back();
    settle();
    QCOMPARE(alive, 1); // b is dropped, a is kept
    QVERIFY(stack.open(B));
    QCOMPARE(alive, 2);
    PageStack fleeting;
    addPages(&fleeting, PageStack::Dropped);
    QVERIFY(fleeting.open(A) && fleeting.open(B) && fleeting.open(A));
    fleeting.home(); // is shown already
    settle();
    QVERIFY(fleeting.page() && fleeting.page()->isVisibleTo(&fleeting));
}

void TestPageStack::wayBackIsRemembered()
{
    PageStack stack;
    addPages(&stack);
    QSignalSpy opened(&stack, &PageStack::opened);
    QSignalSpy can(&stack, &PageStack::canGoBackChanged);
    QVERIFY(stack.open(A));
    QVERIFY(!stack.open(A)); // is shown already
    QVERIFY(stack.open(B) && stack.open(C));
    stack.back();
    stack.back();
    stack.back(); // there is no further way
    QVERIFY(stack.open(C) && stack.open(B));
    stack.home();
    QStringList names;
    for (const QList<QVariant> &call : qAsConst(opened))
        names += call.first().toString();
    QCOMPARE(names.join(QString()), QStringLiteral("abcbacba"));
    QCOMPARE(can.size(), 4);
    QVERIFY(!stack.canGoBack());
    QVERIFY(stack.page()->isVisibleTo(&stack));
}

void TestPageStack::refusedPageChangesNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("unknown") << QStringLiteral("nowhere");
    QTest::newRow("null") << QStringLiteral("null");
    QTest::newRow("no function") << QStringLiteral("none");
    QTest::newRow("throws") << QStringLiteral("throws");
}

void TestPageStack::refusedPageChangesNothing()
{
    QFETCH(QString, name);
    PageStack stack;
    addPages(&stack);
    stack.addPage(QStringLiteral("null"), [] { return nullptr; });
    stack.addPage(QStringLiteral("none"), PageStack::Make());
    stack.addPage(
        QStringLiteral("throws"), []() -> QWidget * { throw std::runtime_error("no camera"); });
    stack.open(A);
    QWidget *page = stack.page();
    bool is_open = false;
    try {
        is_open = stack.open(name);
    } catch (const std::runtime_error &) {
    }
    QVERIFY(!is_open);
    QCOMPARE(stack.name(), A);
    QCOMPARE(stack.page(), page);
    QVERIFY(page->isVisibleTo(&stack) && !stack.canGoBack());
}

void TestPageStack::replacedPageGoesWhenItIsLeft()
{
    alive = 0;
    PageStack stack;
    addPages(&stack);
    stack.open(A);
    const QPointer<QWidget> first = stack.page();
    stack.addPage(A, createPage);
    QCOMPARE(stack.page(), first.data());
    stack.open(B);
    settle();
    QVERIFY(!first);
    stack.back();
    QVERIFY(stack.page());
    QCOMPARE(alive, 2);
}

void TestPageStack::pageIsAsLargeAsTheStack()
{
    PageStack stack;
    addPages(&stack);
    stack.resize(300, 200);
    stack.open(A);
    QCOMPARE(stack.page()->geometry(), QRect(0, 0, 300, 200));
    stack.show();
    stack.resize(200, 300);
    QCOMPARE(stack.page()->geometry(), QRect(0, 0, 200, 300));
    stack.open(B);
    QCOMPARE(stack.page()->geometry(), QRect(0, 0, 200, 300));
}

void TestPageStack::pageMayOpenAnotherFromItsOwnSlot()
{
    PageStack stack;
    addPages(&stack);
    stack.addPage(
        QStringLiteral("button"),
        [&stack] {
            auto *button = new QPushButton;
            connect(button, &QPushButton::clicked, &stack, [&stack] { stack.open(B); });
            return button;
        },
        PageStack::Dropped);
    stack.open(QStringLiteral("button"));
    const QPointer<QWidget> page = stack.page();
    static_cast<QPushButton *>(stack.page())->click();
    QCOMPARE(stack.name(), B);
    settle();
    QVERIFY(!page);
    delete stack.page();
    QVERIFY(!stack.page());
    QVERIFY(stack.open(B)); // made anew
}

void TestPageStack::stackMayBeDeletedInItsSignal()
{
    for (const bool is_in_opened : { true, false }) {
        auto *stack = new PageStack;
        addPages(stack);
        stack->open(A);
        const QPointer<PageStack> alive_stack(stack);
        if (is_in_opened)
            connect(stack, &PageStack::opened, stack, [stack] { delete stack; });
        else
            connect(stack, &PageStack::canGoBackChanged, stack, [stack] { delete stack; });
        stack->open(B);
        QVERIFY(!alive_stack);
    }
}

void TestPageStack::focusGoesToTheStack()
{
    QWidget window;
    QLineEdit other(&window); // would get it otherwise
    PageStack stack(&window);
    addPages(&stack);
    stack.addPage(QStringLiteral("field"), [] {
        auto *page = new QWidget;
        (new QLineEdit(page))->setObjectName(QStringLiteral("field"));
        return page;
    });
    stack.open(A);
    stack.open(QStringLiteral("field"));
    window.show();
    QApplication::setActiveWindow(&window);
    stack.findChild<QLineEdit *>()->setFocus();
    stack.open(B);
    QCOMPARE(window.focusWidget(), &stack);
    QTest::keyClick(&stack, Qt::Key_Back);
    QCOMPARE(stack.name(), QStringLiteral("field"));
}

void TestPageStack::changePaintsThePageOnce()
{
    PageStack stack;
    addPages(&stack);
    stack.resize(300, 200);
    stack.open(A);
    stack.show();
    QVERIFY(QTest::qWaitForWindowExposed(&stack));
    settle();
    stack.open(B);
    QWidget *page = stack.page();
    PaintCounter paints;
    paints.watch(page);
    QCOMPARE(paints.take(page), 1);
    QCOMPARE(paints.take(page), 0);
}

void TestPageStack::slideEndsAndLeavesNothingBehind()
{
    PageStack stack;
    addPages(&stack);
    stack.resize(300, 200);
    stack.setSlideMs(40);
    stack.open(A);
    stack.show();
    QVERIFY(QTest::qWaitForWindowExposed(&stack));
    stack.open(B);
    const QPointer<QWidget> curtain = stack.childAt(150, 100);
    QVERIFY(curtain && curtain != stack.page()); // takes the touches
    stack.open(C);
    QVERIFY(!curtain);
    QTRY_COMPARE(stack.childAt(150, 100), stack.page());
    QTRY_COMPARE(stack.children().size(), 3);
    stack.open(A);
    stack.resize(200, 300);
    QCOMPARE(stack.childAt(100, 100), stack.page());
}

void TestPageStack::memoryIsFlat()
{
    alive = 0;
    PageStack stack;
    addPages(&stack, PageStack::Dropped);
    stack.open(A);
    for (int i = 0; i < 2000; ++i) {
        if (i % 2 == 0)
            stack.open(i % 4 == 0 ? B : C);
        else
            stack.back();
        settle();
    }
    QCOMPARE(alive, 1);
    QCOMPARE(stack.children().size(), 1);
}

QTEST_MAIN(TestPageStack)
#include "tst_pagestack.moc"
