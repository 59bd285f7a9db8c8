// SPDX-License-Identifier: MIT
#include "support/testcase.h"
#include "uitest/auditing.h"

#include <VexoCheckBox>
#include <VexoFunctionButton>
#include <VexoNumericButton>
#include <VexoPushButton>

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollArea>
#include <QScroller>
#include <QSlider>
#include <QSpinBox>
#include <QTabBar>
#include <QToolButton>

using namespace auditing;
using namespace vexo::hox::qt::ui;
using vexo::hox::qt::uitest::TouchLimits;

namespace {

const char *const SMALL = "touch-size error";
const char *const SMALLISH = "touch-size warning";

/// Takes presses without being a button.
class Tile : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

Q_SIGNALS:
    void clicked();
};

QPushButton *button(QWidget *parent = nullptr)
{
    return new QPushButton("OK", parent);
}

QListWidget *list(const QStringList &items)
{
    auto *list = new QListWidget;
    list->addItems(items);
    return list;
}

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
    Screen screen({ 120, 90 });
    const QWidget *good = screen.add(button(), { 1, 1, 9, 9 });
    screen.add(button(), { 20, 1, 30, 6 }, SMALL);
    screen.add(button(), { 60, 1, 6, 30 }, SMALL);
    screen.add(button(), { 80, 1, 8, 30 }, SMALLISH);
    screen.add(button(), { 100, 1, 3, 3 })->setEnabled(false);
    screen.add(new Tile, { 1, 40, 5, 5 }, SMALL);
    screen.add(new QLabel("i"), { 20, 40, 2, 2 });
    auto *page = screen.add(new QWidget, { 40, 40, 40, 3 });
    page->setFocusPolicy(Qt::StrongFocus); // has the keys
    screen.add(new QPushButton(page), { 0, 0, 40, 3 }, SMALL);
    auto *round = screen.add(new QToolButton, { 100, 40, 9.5, 9.5 });
    round->setMask(QRegion(round->rect(), QRegion::Ellipse));
    QVERIFY(screen.appear());
    const Findings findings = PanelAudit::touchSizes(&screen);
    QCOMPARE(screen.surprises(findings), QString());
    QCOMPARE(rulesOf(PanelAudit::touchSizes(&screen, TouchLimits::gloves()), good), SMALL);
    QVERIFY2(findings.first().text.contains("30.0 x 6.0 mm"), qPrintable(findings.first().text));
    QVERIFY(qAbs(findings.first().mm.x() - 20) < 0.2);
    QVERIFY(qAbs(findings.first().mm.height() - 6) < 0.2);
}

void TestPanelAuditTouch::gapsAreFound()
{
    ON_PANEL;
    Screen screen({ 120, 90 });
    screen.add(button(), { 1, 1, 8, 8 }, "touch-size warning, touch-gap warning");
    screen.add(button(), { 9.5, 1, 20, 20 });
    screen.add(button(), { 40, 1, 8, 8 }, SMALLISH);
    screen.add(button(), { 40, 11, 8, 8 }, SMALLISH);
    screen.add(button(), { 80, 1, 10, 10 });
    screen.add(button(), { 90, 1, 10, 10 });
    QVERIFY(screen.appear());
    const Findings findings = PanelAudit::touchSizes(&screen);
    QCOMPARE(screen.surprises(findings), QString());
    QVERIFY2(findings.last().text.startsWith("0."), qPrintable(findings.last().text));
}

void TestPanelAuditTouch::whatLiesAboveIsTakenAway()
{
    ON_PANEL;
    Screen screen({ 120, 90 });
    auto *free = screen.add(button(), { 1, 1, 20, 12 });
    screen.add(button(), { 30, 1, 20, 12 }, SMALL);
    screen.add(button(), { 60, 1, 20, 12 });
    screen.add(button(), { 90, 1, 20, 20 }, SMALL);
    screen.add(button(), { 1, 84, 20, 12 }, SMALL);
    screen.add(button(), { 30, 30, 12, 12 }, SMALL);
    screen.add(new QWidget, { 30, 6, 20, 20 });
    auto *watermark = screen.add(new QLabel, { 60, 1, 20, 12 });
    watermark->setAttribute(Qt::WA_TransparentForMouseEvents);
    screen.add(new QLabel, { 85, 7, 30, 8 });
    screen.add(new QWidget, { 28, 28, 20, 20 });
    screen.add(new QLabel(free), { 1, 1, 18, 10 }); // hands its press on
    QVERIFY(screen.appear());
    const Findings findings = PanelAudit::touchSizes(&screen);
    QCOMPARE(screen.surprises(findings), QString());
    QVERIFY2(
        findings.last().text.startsWith("cannot be touched"), qPrintable(findings.last().text));
}

// A row at the edge of a list is whole as soon as it is moved.
void TestPanelAuditTouch::scrollingBringsTheRest()
{
    const PanelScale scale(8, 4);
    Screen screen({ 100, 60 });
    QScrollArea area(&screen);
    area.setFrameShape(QFrame::NoFrame);
    area.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    screen.add(&area, { 0, 0, 60, 33 });
    auto *content = new QWidget;
    content->setGeometry(Screen::pxRect({ 0, 0, 60, 80 }));
    for (int i = 0; i < 8; ++i)
        screen.add(button(content), { 0, 10.0 * i, 60, 10 });
    const QWidget *tiny = screen.add(button(content), { 0, 74, 20, 4 });
    area.setWidget(content);
    screen.add(new QWidget, { 0, 28, 60, 10 }); // lies over a row
    QVERIFY(screen.appear());
    const auto count = [&](const char *rule) {
        const Findings found = PanelAudit::touchSizes(&screen);
        return std::count_if(found.begin(), found.end(),
            [=](const Finding &finding) { return finding.rule == rule; });
    };
    QCOMPARE(count("touch-size"), 7); // nothing moves it
    QScroller::grabGesture(area.viewport(), QScroller::TouchGesture);
    const Findings findings = PanelAudit::touchSizes(&screen);
    QVERIFY(rulesOf(findings, tiny).startsWith(SMALL));
    QCOMPARE(count("touch-size"), 1);
    QCOMPARE(findings.size(), 2); // with the gap to the row that it lies on
    screen.add(&area, { 0, 0, 60, 6 });
    QCOMPARE(count("touch-size"), 9); // too low a window for all of them
    QScroller::ungrabGesture(area.viewport());
}

void TestPanelAuditTouch::partsCountByThemselves()
{
    const PanelScale scale(8, 5);
    Screen screen({ 200, 120 });
    screen.add(new QSpinBox, { 1, 1, 40, 12 }, "touch-size error, touch-size error");
    screen.add(list({ "one", "two" }), { 50, 1, 40, 30 }, SMALL);
    auto *roomy = screen.add(list({ "one", "two" }), { 100, 1, 40, 30 });
    roomy->setStyleSheet(QString("QListView::item { height: %1px }").arg(px(10, false)));
    auto *tabs = screen.add(new QTabBar, { 150, 1, 45, 12 }, SMALL);
    tabs->addTab("a");
    tabs->addTab("b");
    screen.add(new QCheckBox("on"), { 1, 50, 80, 12 }, SMALL); // what a finger may hit is its text
    screen.add(new VexoCheckBox, { 100, 50, 20, 12 });
    screen.add(new QComboBox, { 150, 50, 40, 12 });
    screen.add(new QSlider(Qt::Horizontal), { 1, 80, 80, 12 }, SMALL);
    auto *field = screen.add(new QLineEdit("text"), { 100, 80, 40, 12 });
    field->setClearButtonEnabled(true);
    screen.expect(field->findChild<QToolButton *>(), SMALL);
    QVERIFY(screen.appear());
    QCOMPARE(screen.surprises(PanelAudit::touchSizes(&screen)), QString());
}

void TestPanelAuditTouch::aRowIsOneTarget()
{
    const PanelScale scale(8, 4);
    Screen screen({ 100, 60 });
    VexoFunctionButton *row = nullptr;
    for (const auto type : { VexoFunctionButton::CheckboxType, VexoFunctionButton::RadiobuttonType,
             VexoFunctionButton::ActionType, VexoFunctionButton::TickAgreementType }) {
        const double y = row ? row->y() / 4.0 : 0;
        row = screen.add(new VexoFunctionButton(nullptr, type), { 0, y + 9.8, 90, 9.8 });
        row->setText("row");
    }
    QVERIFY(screen.appear());
    const Findings findings = PanelAudit::touchSizes(&screen);
    const QWidget *tick_box = row->getButtonInstance(); // with easy access
    QVERIFY(rulesOf(findings, tick_box).startsWith(SMALLISH));
    screen.expect(tick_box, qPrintable(rulesOf(findings, tick_box)));
    QCOMPARE(screen.surprises(findings), QString());
    QCOMPARE(PanelAudit::report(PanelAudit::names(&screen)), QString()); // the rows speak for them
}

void TestPanelAuditTouch::easyAccessForgivesASlide()
{
    const PanelScale scale(8, 4);
    Screen screen({ 100, 60 });
    const auto add = [&](bool is_easy, const QRectF &mm, const char *rules) {
        auto *push = new VexoPushButton;
        push->setMinimumSize(0, 0);
        push->setEasyPress(is_easy, px(1.5, false));
        screen.add(push, mm, rules);
    };
    add(true, { 10, 10, 20, 6 }, SMALLISH);
    add(false, { 50, 10, 20, 6 }, SMALL);
    add(true, { 10, 40, 20, 3 }, SMALL);
    QVERIFY(screen.appear());
    const Findings findings = PanelAudit::touchSizes(&screen);
    QCOMPARE(screen.surprises(findings), QString());
    QVERIFY(findings.first().text.contains("lift"));
    QVERIFY(!findings.at(1).text.contains("lift"));
}

void TestPanelAuditTouch::namelessTargetsAreFound()
{
    const char *const no_name = "accessible-name error";
    Screen screen({ 100, 100 });
    auto *layout = new QVBoxLayout(&screen);
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    const auto add = [&](QWidget *widget, const char *rules = "", const char *name = "") {
        layout->addWidget(screen.expect(widget, rules));
        widget->setAccessibleName(name);
        return widget;
    };
    add(new QToolButton, no_name);
    add(new QToolButton, "", "Back");
    add(button());
    add(new QLineEdit, no_name);
    auto *label = new QLabel("Name");
    layout->addWidget(label);
    label->setBuddy(add(new QLineEdit));
    add(new Tile, "accessible-role warning", "Camera");
    add(list({ "one", QString() }), no_name);
    auto *tabs = new QTabBar;
    tabs->addTab("one");
    add(tabs);
    add(new VexoNumericButton);
    add(new QToolButton)->setEnabled(false);
    QVERIFY(screen.appear());
    QCOMPARE(screen.surprises(PanelAudit::names(&screen)), QString());
}

void TestPanelAuditTouch::reportSaysIt()
{
    const PanelScale scale(8, 4);
    Screen screen({ 100, 60 });
    screen.setObjectName("screen");
    screen.add(button(), { 10, 20, 30, 5 });
    QVERIFY(screen.appear());
    QCOMPARE(PanelAudit::report(PanelAudit::touchSizes(&screen)),
        QString("error: touch-size: QWidget \"screen\" > QPushButton \"OK\": 30.0 x 5.0 mm to "
                "touch, less than 7 mm (30.0 x 5.0 mm at 10.0, 20.0 mm)\n"));
    QCOMPARE(PanelAudit::report({}), QString());
}

void TestPanelAuditTouch::nothingIsFoundOnNothing()
{
    QVERIFY(PanelAudit::all(nullptr).isEmpty());
    auto screen = std::make_unique<Screen>(QSizeF(30, 30));
    screen->add(button(), { 0, 0, 1, 1 });
    QVERIFY(PanelAudit::all(screen.get()).isEmpty()); // it is hidden
    QVERIFY(screen->appear());
    const Findings findings = PanelAudit::touchSizes(screen.get());
    screen.reset();
    QVERIFY(!findings.first().widget);
    QVERIFY(PanelAudit::report(findings).contains("touch-size"));
}

QTEST_MAIN(TestPanelAuditTouch)
#include "tst_panelaudit_touch.moc"
