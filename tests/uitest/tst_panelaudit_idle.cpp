// SPDX-License-Identifier: MIT
#include "support/testcase.h"
#include "uitest/auditing.h"

#include <VexoLineEdit>
#include <VexoPushButton>

#include <QLineEdit>
#include <QPointer>
#include <QTimer>

#include <thread>

using namespace auditing;
using namespace vexo::hox::qt::ui;

namespace {

const char *const TICKED = "idle-timer warning";
const char *const WASTED = "wasted-repaint warning";
const char *const BUSY = "idle-repaint warning, idle-timer warning";
const int watched_ms = 200;

/// A lamp that blinks 20 times in a second, and paints as much as it is told.
class Blinker : public QWidget
{
public:
    explicit Blinker(const QSizeF &painted_mm = { 4, 4 }, bool is_declared = false)
    {
        setProperty("hoxq_blinks", is_declared);
        m_timer.setObjectName("blink");
        m_timer.setParent(this);
        const QRect painted_px = Screen::pxRect({ QPointF(), painted_mm });
        connect(&m_timer, &QTimer::timeout, this, [=] {
            m_is_on = !m_is_on;
            update(painted_px);
        });
        m_timer.start(50);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter(this).fillRect(0, 0, px(4, true), px(4, false), m_is_on ? Qt::red : Qt::black);
    }

private:
    QTimer m_timer;
    bool m_is_on = false;
};

} // namespace

class TestPanelAuditIdle : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void busyWidgetsAreFound_data() { addPanels(); }
    void busyWidgetsAreFound();
    void theCauseIsNamed();
    void wasteIsFound_data() { addPanels(); }
    void wasteIsFound();
    void timersAndWakeUpsAreFound();
    void cursorsMayBlink();
    void theWindowMayGo();
};

void TestPanelAuditIdle::busyWidgetsAreFound()
{
    ON_PANEL;
    Screen screen({ 60, 60 });
    screen.add(new Blinker, { 2, 2, 20, 20 }, BUSY);
    screen.add(new Blinker({ 4, 4 }, true), { 30, 2, 20, 20 });
    screen.add(new VexoPushButton, { 2, 30, 20, 20 });
    QVERIFY(screen.appear());
    const Findings findings = PanelAudit::idle(&screen, watched_ms);
    QCOMPARE(screen.surprises(findings), QString());
    const Finding &first = findings.first();
    QVERIFY2(first.text.contains(QString::fromUtf8("16 mm² each")), qPrintable(first.text));
    QVERIFY(qAbs(first.mm.x() - 2) < 0.2 && qAbs(first.mm.height() - 4) < 0.2);
    QVERIFY2(findings.last().text.startsWith("QTimer \"blink\" ticked "),
        qPrintable(findings.last().text));
}

// What lies below a widget is painted with it, and what lies on it.
void TestPanelAuditIdle::theCauseIsNamed()
{
    const PanelScale scale(4, 4);
    Screen screen({ 75, 75 });
    auto *page = screen.add(new QWidget, { 0, 0, 25, 25 });
    auto *on_page = new Blinker;
    on_page->setParent(page);
    screen.add(on_page, { 2, 2, 12, 12 }, BUSY);
    auto *ground = screen.add(new Blinker({ 25, 25 }), { 37, 37, 25, 25 });
    screen.expect(ground, "idle-repaint warning, wasted-repaint warning, idle-timer warning");
    screen.add(new QLabel("on", ground), { 2, 2, 12, 12 });
    QVERIFY(screen.appear());
    QCOMPARE(screen.surprises(PanelAudit::idle(&screen, watched_ms)), QString());
}

void TestPanelAuditIdle::wasteIsFound()
{
    ON_PANEL;
    Screen screen({ 60, 60 });
    screen.add(new Blinker({ 15, 15 }, true), { 2, 2, 20, 20 }, WASTED);
    screen.add(new Blinker({ 4, 4 }, true), { 30, 2, 20, 20 });
    QVERIFY(screen.appear());
    const Findings findings = PanelAudit::idle(&screen, watched_ms);
    QCOMPARE(screen.surprises(findings), QString());
    QVERIFY2(findings.first().text.endsWith(QString::fromUtf8(" where 16 mm² changed")),
        qPrintable(findings.first().text));
}

void TestPanelAuditIdle::timersAndWakeUpsAreFound()
{
    Screen screen({ 50, 50 });
    QWidget other;
    QVERIFY(screen.appear());
    QTimer of_the_application;
    of_the_application.start(20);
    QTimer of_another_window(&other);
    of_another_window.start(20);
    QTimer once;
    once.setSingleShot(true);
    once.start(20);
    QCOMPARE(rulesOf(PanelAudit::idle(&screen, watched_ms), &screen), TICKED);
    of_the_application.setProperty("hoxq_blinks", true);
    of_another_window.stop();
    QCOMPARE(PanelAudit::report(PanelAudit::idle(&screen, watched_ms)), QString());
    of_the_application.stop();
    std::thread worker([&] {
        for (int i = 0; i < 30; ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
            QMetaObject::invokeMethod(&other, [] {});
        }
    });
    const Findings of_worker = PanelAudit::idle(&screen, watched_ms);
    worker.join();
    QCOMPARE(rulesOf(of_worker, &screen), TICKED);
    QVERIFY2(of_worker.first().text.startsWith("woke up "), qPrintable(of_worker.first().text));
}

void TestPanelAuditIdle::cursorsMayBlink()
{
    const int flash_ms = QApplication::cursorFlashTime();
    QApplication::setCursorFlashTime(60);
    const PanelScale scale(4, 4);
    Screen screen({ 75, 75 });
    QLineEdit *const fields[] = { screen.add(new QLineEdit, { 0, 0, 50, 8 }),
        screen.add(new VexoLineEdit, { 0, 25, 50, 8 }) };
    QVERIFY(screen.appear());
    QApplication::setActiveWindow(&screen);
    for (QLineEdit *field : fields) {
        field->setFocus();
        QTRY_VERIFY(field->hasFocus());
        QCOMPARE(PanelAudit::report(PanelAudit::idle(&screen, watched_ms)), QString());
    }
    QApplication::setCursorFlashTime(flash_ms);
}

void TestPanelAuditIdle::theWindowMayGo()
{
    QVERIFY(PanelAudit::idle(nullptr, watched_ms).isEmpty());
    const QPointer<Screen> screen = new Screen({ 50, 50 });
    auto *busy = screen->add(new Blinker, { 0, 0, 25, 25 });
    QVERIFY(screen->appear());
    QTimer::singleShot(60, busy, [=] { delete busy; });
    QTimer::singleShot(120, screen, [=] { delete screen; });
    QVERIFY(PanelAudit::idle(screen, watched_ms).isEmpty());
    QVERIFY(!screen);
}

QTEST_MAIN(TestPanelAuditIdle)
#include "tst_panelaudit_idle.moc"
