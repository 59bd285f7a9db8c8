// SPDX-License-Identifier: MIT
#include "support/panelscale.h"
#include "support/testcase.h"
#include "uitest/auditing.h"

#include <Panel>
#include <VexoCheckBox>
#include <VexoFunctionButton>
#include <VexoIconButton>
#include <VexoNumericButton>
#include <VexoPushButton>

#include <QAccessible>
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QScroller>
#include <QSlider>
#include <QSpinBox>
#include <QTabBar>
#include <QToolButton>

using namespace auditing;
using namespace vexo::hox::qt::ui;
using vexo::hox::qt::uitest::PanelAudit;
using vexo::hox::qt::uitest::TouchLimits;

namespace {

/// Takes presses without being a button.
class Tile : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

Q_SIGNALS:
    void clicked();
};

QPushButton *addButton(QWidget *window, double x, double y, double width, double height)
{
    auto *button = new QPushButton(QStringLiteral("OK"), window);
    place(button, x, y, width, height);
    return button;
}

const QStringList small{ QStringLiteral("touch-size error") };
const QStringList smallish{ QStringLiteral("touch-size warning") };
const QStringList close_by{ QStringLiteral("touch-size warning"),
    QStringLiteral("touch-gap warning") };

} // namespace

/// Of touchSizes(), names() and report().
class TestPanelAuditTouch : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void smallTargetsAreFound_data() { addPanels(); }
    void smallTargetsAreFound();
    void gapsAreFound_data() { addPanels(); }
    void gapsAreFound();
    void whatLiesAboveIsTakenAway_data() { addPanels(); }
    void whatLiesAboveIsTakenAway();
    void scrollingBringsTheRest();
    void partsCountByThemselves();
    void aRowIsOneTarget();
    void easyAccessForgivesASlide();
    void namelessTargetsAreFound();
    void reportSaysIt();
    void nothingIsFoundOnNothing();
};

void TestPanelAuditTouch::smallTargetsAreFound()
{
    ON_PANEL;
    QWidget window;
    place(&window, 0, 0, 120, 90);
    const QPushButton *good = addButton(&window, 1, 1, 9, 9);
    const QPushButton *low = addButton(&window, 20, 1, 30, 6);
    const QPushButton *narrow = addButton(&window, 60, 1, 6, 30);
    const QPushButton *middling = addButton(&window, 80, 1, 8, 30);
    QPushButton *off = addButton(&window, 100, 1, 3, 3);
    off->setEnabled(false);
    Tile tile(&window);
    place(&tile, 1, 40, 5, 5);
    QLabel label(QStringLiteral("i"), &window);
    place(&label, 20, 40, 2, 2);
    QWidget page(&window); // has the keys
    page.setFocusPolicy(Qt::StrongFocus);
    place(&page, 40, 40, 40, 3);
    auto *inside = new QPushButton(&page);
    place(inside, 0, 0, 40, 3);
    auto *round = new QToolButton(&window);
    place(round, 100, 40, 9.5, 9.5);
    round->setMask(QRegion(round->rect(), QRegion::Ellipse));
    show(&window);
    const Findings findings = PanelAudit::touchSizes(&window);
    QCOMPARE(rulesOf(findings, good), QStringList());
    QCOMPARE(rulesOf(findings, low), small);
    QCOMPARE(rulesOf(findings, narrow), small);
    QCOMPARE(rulesOf(findings, middling), smallish);
    QCOMPARE(rulesOf(findings, &tile), small);
    QCOMPARE(rulesOf(findings, inside), small);
    QVERIFY2(findings.size() == 5, qPrintable(PanelAudit::report(findings)));
    QCOMPARE(rulesOf(PanelAudit::touchSizes(&window, TouchLimits::gloves()), good), small);
    QVERIFY2(findings.first().text.contains(QStringLiteral("30.0 x 6.0 mm")),
        qPrintable(findings.first().text));
    QVERIFY(qAbs(findings.first().mm.x() - 20) < 0.2);
    QVERIFY(qAbs(findings.first().mm.height() - 6) < 0.2);
}

void TestPanelAuditTouch::gapsAreFound()
{
    ON_PANEL;
    QWidget window;
    place(&window, 0, 0, 120, 90);
    const QPushButton *one = addButton(&window, 1, 1, 8, 8);
    const QPushButton *beside = addButton(&window, 9.5, 1, 20, 20);
    const QPushButton *far = addButton(&window, 40, 1, 8, 8);
    const QPushButton *below = addButton(&window, 40, 11, 8, 8);
    const QPushButton *large = addButton(&window, 80, 1, 10, 10);
    const QPushButton *adjacent = addButton(&window, 90, 1, 10, 10);
    show(&window);
    const Findings findings = PanelAudit::touchSizes(&window);
    QCOMPARE(rulesOf(findings, one), close_by);
    QCOMPARE(rulesOf(findings, beside), QStringList());
    QCOMPARE(rulesOf(findings, far), smallish);
    QCOMPARE(rulesOf(findings, below), smallish);
    QCOMPARE(rulesOf(findings, large) + rulesOf(findings, adjacent), QStringList());
    QVERIFY2(
        findings.last().text.startsWith(QStringLiteral("0.")), qPrintable(findings.last().text));
}

void TestPanelAuditTouch::whatLiesAboveIsTakenAway()
{
    ON_PANEL;
    QWidget window;
    place(&window, 0, 0, 120, 90);
    const QPushButton *free = addButton(&window, 1, 1, 20, 12);
    const QPushButton *half = addButton(&window, 30, 1, 20, 12);
    const QPushButton *seen_through = addButton(&window, 60, 1, 20, 12);
    const QPushButton *split = addButton(&window, 90, 1, 20, 20);
    const QPushButton *cut = addButton(&window, 1, 84, 20, 12);
    const QPushButton *covered = addButton(&window, 30, 30, 12, 12);
    QWidget notice(&window);
    place(&notice, 30, 6, 20, 20);
    QLabel watermark(&window);
    watermark.setAttribute(Qt::WA_TransparentForMouseEvents);
    place(&watermark, 60, 1, 20, 12);
    QLabel bar(&window);
    place(&bar, 85, 7, 30, 8);
    QWidget sheet(&window);
    place(&sheet, 28, 28, 20, 20);
    auto *caption = new QLabel(const_cast<QPushButton *>(free)); // hands its press on
    place(caption, 1, 1, 18, 10);
    show(&window);
    const Findings findings = PanelAudit::touchSizes(&window);
    QCOMPARE(rulesOf(findings, free), QStringList());
    QCOMPARE(rulesOf(findings, half), small);
    QCOMPARE(rulesOf(findings, seen_through), QStringList());
    QCOMPARE(rulesOf(findings, split), small);
    QCOMPARE(rulesOf(findings, cut), small);
    QCOMPARE(rulesOf(findings, covered), small);
    QVERIFY2(findings.last().text.startsWith(QStringLiteral("cannot be touched")),
        qPrintable(findings.last().text));
}

// A row at the edge of a list is whole as soon as it is moved.
void TestPanelAuditTouch::scrollingBringsTheRest()
{
    const PanelScale scale(8, 4);
    QWidget window;
    place(&window, 0, 0, 100, 60);
    QScrollArea area(&window);
    area.setFrameShape(QFrame::NoFrame);
    area.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    place(&area, 0, 0, 60, 33);
    auto *content = new QWidget;
    place(content, 0, 0, 60, 80);
    for (int i = 0; i < 8; ++i)
        addButton(content, 0, 10 * i, 60, 10);
    QPushButton *tiny = addButton(content, 0, 74, 20, 4);
    area.setWidget(content);
    QWidget foot(&window);
    place(&foot, 0, 28, 60, 10); // lies over a row
    show(&window);
    const auto count = [&](const char *rule) {
        const Findings found = PanelAudit::touchSizes(&window);
        return std::count_if(found.begin(), found.end(),
            [=](const Finding &finding) { return finding.rule == QLatin1String(rule); });
    };
    QCOMPARE(count("touch-size"), 7); // nothing moves it
    QScroller::grabGesture(area.viewport(), QScroller::TouchGesture);
    const Findings findings = PanelAudit::touchSizes(&window);
    QCOMPARE(rulesOf(findings, tiny).value(0), small.first());
    QCOMPARE(count("touch-size"), 1);
    QCOMPARE(findings.size(), 2); // with the gap to the row that it lies on
    place(&area, 0, 0, 60, 6);
    QCOMPARE(count("touch-size"), 9); // too low a window for all of them
    QScroller::ungrabGesture(area.viewport());
}

void TestPanelAuditTouch::partsCountByThemselves()
{
    const PanelScale scale(8, 5);
    QWidget window;
    place(&window, 0, 0, 200, 120);
    QSpinBox spin(&window);
    place(&spin, 1, 1, 40, 12);
    QListWidget list(&window);
    list.addItems({ QStringLiteral("one"), QStringLiteral("two") });
    place(&list, 50, 1, 40, 30);
    QListWidget roomy(&window);
    roomy.setStyleSheet(QStringLiteral("QListView::item { height: %1px }").arg(px(10, false)));
    roomy.addItems({ QStringLiteral("one"), QStringLiteral("two") });
    place(&roomy, 100, 1, 40, 30);
    QTabBar tabs(&window);
    tabs.addTab(QStringLiteral("a"));
    tabs.addTab(QStringLiteral("b"));
    place(&tabs, 150, 1, 45, 12);
    QCheckBox box(QStringLiteral("on"), &window);
    place(&box, 1, 50, 80, 12);
    VexoCheckBox own(&window);
    place(&own, 100, 50, 20, 12);
    QComboBox combo(&window);
    place(&combo, 150, 50, 40, 12);
    QSlider slider(Qt::Horizontal, &window);
    place(&slider, 1, 80, 80, 12);
    QLineEdit field(&window);
    place(&field, 100, 80, 40, 12);
    field.setText(QStringLiteral("text"));
    field.setClearButtonEnabled(true);
    show(&window);
    const Findings findings = PanelAudit::touchSizes(&window);
    QCOMPARE(rulesOf(findings, &spin), small + small);
    QCOMPARE(rulesOf(findings, &list), small);
    QCOMPARE(rulesOf(findings, &roomy), QStringList());
    QCOMPARE(rulesOf(findings, &tabs), small);
    QCOMPARE(rulesOf(findings, &box), small); // its text is what a finger may hit
    QCOMPARE(rulesOf(findings, &own), QStringList());
    QCOMPARE(rulesOf(findings, &combo), QStringList());
    QCOMPARE(rulesOf(findings, &slider), small);
    QCOMPARE(rulesOf(findings, &field), QStringList());
    QCOMPARE(rulesOf(findings, field.findChild<QToolButton *>()), small);
}

void TestPanelAuditTouch::aRowIsOneTarget()
{
    const PanelScale scale(8, 4);
    QWidget window;
    place(&window, 0, 0, 100, 60);
    QVector<VexoFunctionButton *> rows;
    for (const auto type : { VexoFunctionButton::CheckboxType, VexoFunctionButton::RadiobuttonType,
             VexoFunctionButton::ActionType, VexoFunctionButton::TickAgreementType }) {
        rows += new VexoFunctionButton(&window, type);
        rows.last()->setText(QStringLiteral("row"));
        place(rows.last(), 0, 9.8 * rows.size(), 90, 9.8);
    }
    show(&window);
    const Findings findings = PanelAudit::touchSizes(&window);
    const QWidget *tick_box = rows.last()->getButtonInstance();
    QCOMPARE(rulesOf(findings, tick_box).value(0), smallish.first()); // with easy access
    QCOMPARE(findings.size(), rulesOf(findings, tick_box).size());
    QCOMPARE(PanelAudit::report(PanelAudit::names(&window)), QString()); // the rows speak for them
}

void TestPanelAuditTouch::easyAccessForgivesASlide()
{
    const PanelScale scale(8, 4);
    QWidget window;
    place(&window, 0, 0, 100, 60);
    VexoPushButton eased(&window);
    eased.setMinimumSize(0, 0);
    place(&eased, 10, 10, 20, 6);
    eased.setEasyPress(true, px(1.5, false));
    VexoPushButton plain(&window);
    plain.setMinimumSize(0, 0);
    place(&plain, 50, 10, 20, 6);
    plain.setEasyPress(false, px(1.5, false));
    VexoPushButton tiny(&window);
    tiny.setMinimumSize(0, 0);
    place(&tiny, 10, 40, 20, 3);
    tiny.setEasyPress(true, px(1.5, false));
    show(&window);
    const Findings findings = PanelAudit::touchSizes(&window);
    QCOMPARE(rulesOf(findings, &eased), smallish);
    QCOMPARE(rulesOf(findings, &plain), small);
    QCOMPARE(rulesOf(findings, &tiny), small);
    QVERIFY(findings.first().text.contains(QStringLiteral("lift")));
    QVERIFY(!findings.at(1).text.contains(QStringLiteral("lift")));
}

void TestPanelAuditTouch::namelessTargetsAreFound()
{
    QWidget window;
    window.resize(400, 400);
    auto *layout = new QVBoxLayout(&window);
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    const auto add = [&](QWidget *widget, const char *name) {
        layout->addWidget(widget);
        widget->setAccessibleName(QLatin1String(name));
        return widget;
    };
    const QWidget *nameless = add(new QToolButton, "");
    const QWidget *named = add(new QToolButton, "Back");
    const QWidget *text = add(new QPushButton(QStringLiteral("OK")), "");
    const QWidget *field = add(new QLineEdit, "");
    auto *labelled = new QLineEdit;
    add(labelled, "");
    auto *label = new QLabel(QStringLiteral("Name"));
    layout->addWidget(label);
    label->setBuddy(labelled);
    const QWidget *mute = add(new Tile, "Camera");
    auto *list = new QListWidget;
    list->addItems({ QStringLiteral("one"), QString() });
    add(list, "");
    auto *tabs = new QTabBar;
    tabs->addTab(QStringLiteral("one"));
    add(tabs, "");
    auto *stepper = new VexoNumericButton;
    add(stepper, "");
    add(new QToolButton, "")->setEnabled(false);
    show(&window);
    const Findings findings = PanelAudit::names(&window);
    const QStringList no_name{ QStringLiteral("accessible-name error") };
    QCOMPARE(rulesOf(findings, nameless), no_name);
    QCOMPARE(rulesOf(findings, named) + rulesOf(findings, text), QStringList());
    QCOMPARE(rulesOf(findings, field), no_name);
    QCOMPARE(rulesOf(findings, labelled) + rulesOf(findings, tabs), QStringList());
    QCOMPARE(rulesOf(findings, mute), { QStringLiteral("accessible-role warning") });
    QCOMPARE(rulesOf(findings, list), no_name);
    QVERIFY2(findings.size() == 4, qPrintable(PanelAudit::report(findings)));
}

void TestPanelAuditTouch::reportSaysIt()
{
    const PanelScale scale(8, 4);
    QWidget window;
    window.setObjectName(QStringLiteral("screen"));
    place(&window, 0, 0, 100, 60);
    addButton(&window, 10, 20, 30, 5);
    show(&window);
    QCOMPARE(PanelAudit::report(PanelAudit::touchSizes(&window)),
        QStringLiteral("error: touch-size: QWidget \"screen\" > QPushButton \"OK\": 30.0 x 5.0 mm "
                       "to touch, less than 7 mm (30.0 x 5.0 mm at 10.0, 20.0 mm)\n"));
    QCOMPARE(PanelAudit::report({}), QString());
}

void TestPanelAuditTouch::nothingIsFoundOnNothing()
{
    QVERIFY(PanelAudit::all(nullptr).isEmpty());
    QWidget hidden;
    addButton(&hidden, 0, 0, 1, 1);
    QVERIFY(PanelAudit::all(&hidden).isEmpty());
    auto *window = new QWidget;
    addButton(window, 0, 0, 1, 1);
    show(window);
    const Findings findings = PanelAudit::touchSizes(window);
    delete window;
    QVERIFY(!findings.first().widget);
    QVERIFY(PanelAudit::report(findings).contains(QStringLiteral("touch-size")));
}

QTEST_MAIN(TestPanelAuditTouch)
#include "tst_panelaudit_touch.moc"
