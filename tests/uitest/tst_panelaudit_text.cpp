// SPDX-License-Identifier: MIT
#include "support/testcase.h"
#include "uitest/auditing.h"

#include <VexoFunctionButton>
#include <VexoLabeledContainer>
#include <VexoLineEdit>
#include <VexoPushButton>

#include <QBoxLayout>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>

using namespace auditing;
using namespace vexo::hox::qt::ui;

namespace {

const char *const CUT = "text-cut error";
const char *const CUT_SOMETIMES = "text-cut warning";

QLabel *label(const char *text = "Night mode", QWidget *parent = nullptr)
{
    auto *label = new QLabel(text, parent);
    QFont font = label->font();
    font.setPixelSize(px(3, false));
    label->setFont(font);
    return label;
}

/// Draws its text shortened where it has no room.
class Elider : public QWidget
{
public:
    explicit Elider(const QString &text) { setProperty("text", text); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const QString text = property("text").toString();
        QPainter painter(this);
        painter.drawText(
            rect(), Qt::AlignVCenter, fontMetrics().elidedText(text, Qt::ElideRight, width()));
    }
};

/// Does something whenever the direction changes, as an application may that lays its screen out.
class Turning : public Screen
{
public:
    using Screen::Screen;
    std::function<void(bool is_right_to_left)> turn;

protected:
    void changeEvent(QEvent *event) override
    {
        if (turn && event->type() == QEvent::LayoutDirectionChange)
            turn(isRightToLeft());
    }
};

} // namespace

class TestPanelAuditText : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cutTextsAreFound_data() { addPanels(); }
    void cutTextsAreFound();
    void overlapsAreFound_data() { addPanels(); }
    void overlapsAreFound();
    void shortenedTextsAreFound();
    void scrollingIsNoCut();
    void longerTextsAreTried_data() { addPanels(); }
    void longerTextsAreTried();
    void rightToLeftIsTried();
    void allIsRestored();
    void scrolledPlacesAreRestored();
    void partsMayGo();
};

void TestPanelAuditText::cutTextsAreFound()
{
    ON_PANEL;
    Screen screen({ 300, 100 });
    screen.add(label(), { 2, 2, 60, 6 });
    screen.add(label(), { 2, 12, 5, 6 }, CUT);
    screen.add(label(), { 2, 22, 60, 1.5 }, CUT);
    auto *box = screen.add(new QWidget, { 2, 32, 5, 6 });
    screen.add(label("Night mode", box), { 0, 0, 60, 6 }, CUT);
    auto *lines
        = screen.add(label("Night mode of the display and the keys"), { 2, 42, 15, 4 }, CUT);
    lines->setWordWrap(true);
    lines->setAlignment(Qt::AlignTop);
    screen.add(label(), { 2, 60, 60, 0 }, "text-cut error, text-cut warning");
    screen.add(label(), { 2, 70, 8, 6 })->hide();
    auto *push = screen.add(new VexoPushButton, { 100, 2, 10, 10 }, CUT);
    push->setText("Displayeinstellungen");
    QVERIFY(screen.appear());
    const Findings findings = PanelAudit::texts(&screen, 1);
    QCOMPARE(screen.surprises(findings), QString());
    QVERIFY2(findings.first().text.startsWith("\"Night mode\" is cut by "),
        qPrintable(findings.first().text));
}

void TestPanelAuditText::overlapsAreFound()
{
    ON_PANEL;
    Screen screen({ 300, 100 });
    screen.add(label(), { 2, 2, 80, 6 }, "text-overlap error");
    screen.add(label("Key tone"), { 5, 3, 80, 6 });
    screen.add(label(), { 2, 20, 80, 6 });
    screen.add(label("Key tone"), { 2, 24, 80, 6 });
    auto *covered = screen.add(new QWidget, { 2, 40, 80, 20 });
    screen.add(label("Night mode", covered), { 2, 2, 60, 6 });
    screen.add(label("Key tone", covered), { 5, 2, 60, 6 });
    screen.add(new QWidget, { 0, 38, 100, 30 })->setStyleSheet("background: white");
    QVERIFY(screen.appear());
    QCOMPARE(screen.surprises(PanelAudit::texts(&screen, 1)), QString());
}

void TestPanelAuditText::shortenedTextsAreFound()
{
    const PanelScale scale(4, 4);
    Screen screen({ 150, 50 });
    screen.add(new Elider("Display brightness"), { 0, 0, 75, 10 });
    screen.add(new Elider("Display brightness"), { 0, 12, 15, 10 }, CUT_SOMETIMES);
    auto *meant = screen.add(new Elider(QString("Loading") + QChar(0x2026)), { 0, 25, 75, 10 });
    meant->setAccessibleName(meant->property("text").toString());
    QVERIFY(screen.appear());
    QCOMPARE(screen.surprises(PanelAudit::texts(&screen, 1)), QString());
}

// A row at the edge, a long entry in a field, and a picture that is moved both ways.
void TestPanelAuditText::scrollingIsNoCut()
{
    const PanelScale scale(8, 5);
    Screen screen({ 100, 60 });
    QScrollArea area(&screen);
    area.setFrameShape(QFrame::NoFrame);
    screen.add(&area, { 0, 0, 60, 24 });
    auto *content = new QWidget;
    content->setGeometry(Screen::pxRect({ 0, 0, 50, 80 }));
    for (int i = 0; i < 16; ++i)
        screen.add(label("Night mode", content), { 0, 5.0 * i, 50, 5 });
    screen.add(label("Night mode", content), { 45, 5, 50, 5 }, CUT); // it does not move that way
    area.setWidget(content);
    auto *field = screen.add(new VexoLineEdit, { 0, 40, 20, 8 });
    field->setText("A name that is longer than its field by far");
    QVERIFY(screen.appear());
    area.verticalScrollBar()->setValue(px(2, false));
    QCOMPARE(screen.surprises(PanelAudit::texts(&screen, 1)), QString());
}

void TestPanelAuditText::longerTextsAreTried()
{
    ON_PANEL;
    Screen screen({ 300, 100 });
    screen.add(label("Settings"), { 2, 2, 60, 6 });
    auto *tight = screen.add(label("Settings"), { 2, 12, 60, 6 }, CUT_SOMETIMES);
    auto *number = screen.add(label("1234567"), { 2, 22, 60, 6 });
    for (QLabel *each : { tight, number })
        each->resize(each->sizeHint().width() + 2, each->height());
    auto *tabs = screen.add(new QTabBar, { 100, 2, 60, 12 });
    tabs->addTab("Display");
    tabs->setUsesScrollButtons(false);
    QVERIFY(screen.appear());
    const Findings findings = PanelAudit::texts(&screen);
    QCOMPARE(screen.surprises(findings), QString());
    const QString text = findings.first().text;
    QVERIFY2(text.contains(QString::fromUtf8("\"Sééttíí")), qPrintable(text));
    QVERIFY(text.endsWith("1.4 times as long"));
    QCOMPARE(rulesOf(PanelAudit::texts(&screen, 1), tight), QString());
}

// Of a layout that is made for one direction.
void TestPanelAuditText::rightToLeftIsTried()
{
    const PanelScale scale(8, 5);
    Turning screen({ 100, 60 });
    auto *moved = screen.add(label(), { 0, 0, 50, 6 }, CUT_SOMETIMES);
    screen.add(label("Key tone"), { 0, 20, 50, 6 });
    screen.turn = [=](bool is_right) { moved->move(is_right ? -px(10, true) : 0, 0); };
    QVERIFY(screen.appear());
    moved->setAlignment(Qt::AlignLeft | Qt::AlignAbsolute);
    const Findings findings = PanelAudit::texts(&screen, 1);
    QCOMPARE(screen.surprises(findings), QString());
    QVERIFY(findings.first().text.endsWith("from right to left"));
    QVERIFY(!screen.isRightToLeft() && !screen.testAttribute(Qt::WA_SetLayoutDirection));
}

void TestPanelAuditText::allIsRestored()
{
    const PanelScale scale(8, 5);
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    const Messages platform; // it knows no smallest size of a window
    auto *button = new QPushButton("&Save the settings");
    button->setShortcut(QKeySequence(Qt::CTRL + Qt::Key_S));
    auto *row = new VexoFunctionButton;
    row->setText("Night mode");
    auto *container = new VexoLabeledContainer(nullptr, new VexoLineEdit);
    container->setLabelText("Address");
    auto *area = new QScrollArea;
    auto *content = new QLabel(QString("word and word ").repeated(80));
    content->setWordWrap(true);
    area->setWidgetResizable(true);
    area->setWidget(content);
    auto *rich = new QLabel("<b>Night</b> mode &amp; key tone");
    for (QWidget *widget : QWidgetList{ button, row, container, rich, area })
        layout->addWidget(widget);
    window.resize(500, 500);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QScrollBar *bar = area->verticalScrollBar();
    bar->setValue(bar->maximum());
    const auto state = [&] {
        QCoreApplication::processEvents();
        const QWidget *field = container->findChild<VexoLineEdit *>();
        return QVariantList{ window.grab().toImage(), window.size(), window.minimumSize(),
            bar->value(), button->text(), button->shortcut(), row->text(), container->labelText(),
            field->accessibleName(), rich->text() };
    };
    const QVariantList before = state();
    const QSignalSpy moved(bar, &QScrollBar::valueChanged);
    const QSignalSpy ranged(bar, &QScrollBar::rangeChanged);
    PanelAudit::texts(&window);
    QCOMPARE(moved.size() + ranged.size(), 0);
    QCOMPARE(state(), before);
}

// A content that becomes shorter takes the place along to which it was scrolled.
void TestPanelAuditText::scrolledPlacesAreRestored()
{
    QScrollArea area;
    area.resize(200, 200);
    auto *content = new Turning(QSizeF());
    content->turn = [=](bool is_right) { content->resize(100, is_right ? 10 : 900); };
    content->resize(100, 900);
    area.setWidget(content);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    area.verticalScrollBar()->setValue(300);
    PanelAudit::texts(&area, 1);
    QCOMPARE(area.verticalScrollBar()->value(), 300);
    QCOMPARE(content->y(), -300);
}

void TestPanelAuditText::partsMayGo()
{
    Turning screen({ 70, 70 });
    const QPointer<QWidget> part = screen.add(new QPushButton("Save the settings"), { 0, 0, 5, 5 });
    screen.turn = [=](bool) { delete part; };
    QVERIFY(screen.appear());
    const Findings findings = PanelAudit::all(&screen, 0);
    QVERIFY(!part);
    QVERIFY(!findings.isEmpty());
    QVERIFY(!findings.first().widget);
}

QTEST_MAIN(TestPanelAuditText)
#include "tst_panelaudit_text.moc"
