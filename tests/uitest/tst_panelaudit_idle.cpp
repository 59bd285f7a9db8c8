// SPDX-License-Identifier: MIT
#include "support/panelscale.h"
#include "support/testcase.h"
#include "uitest/auditing.h"

#include <VexoLineEdit>
#include <VexoPushButton>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QTimer>

#include <thread>

using namespace auditing;
using namespace vexo::hox::qt::ui;
using vexo::hox::qt::uitest::PanelAudit;

namespace {

const QString painted = QStringLiteral("idle-repaint warning");
const QString ticked = QStringLiteral("idle-timer warning");
const QString wasted = QStringLiteral("wasted-repaint warning");
const int watched_ms = 200;

/// A lamp that blinks 20 times in a second, and paints as much as it is told.
class Blinker : public QWidget
{
public:
    Blinker(QWidget *parent, const QRect &painted_px)
        : QWidget(parent)
    {
        m_timer.setObjectName(QStringLiteral("blink"));
        m_timer.setParent(this);
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
    QWidget window;
    place(&window, 0, 0, 60, 60);
    const QRect lamp_px(0, 0, px(4, true), px(4, false));
    Blinker busy(&window, lamp_px);
    place(&busy, 2, 2, 20, 20);
    Blinker declared(&window, lamp_px);
    declared.setProperty("hoxq_blinks", true);
    place(&declared, 30, 2, 20, 20);
    VexoPushButton quiet(&window);
    place(&quiet, 2, 30, 20, 20);
    show(&window);
    const Findings findings = PanelAudit::idle(&window, watched_ms);
    QCOMPARE(rulesOf(findings, &busy), QStringList({ painted, ticked }));
    QVERIFY2(findings.size() == 2, qPrintable(PanelAudit::report(findings)));
    QVERIFY2(findings.first().text.contains(QStringLiteral("16 mm² each")),
        qPrintable(findings.first().text));
    QVERIFY(
        qAbs(findings.first().mm.x() - 2) < 0.2 && qAbs(findings.first().mm.height() - 4) < 0.2);
    QVERIFY2(findings.last().text.startsWith(QStringLiteral("QTimer \"blink\" ticked ")),
        qPrintable(findings.last().text));
}

// What lies below a widget is painted with it, and what lies on it.
void TestPanelAuditIdle::theCauseIsNamed()
{
    QWidget window;
    window.resize(300, 300);
    QWidget page(&window);
    page.setGeometry(0, 0, 100, 100);
    Blinker on_page(&page, QRect(0, 0, 20, 20));
    on_page.setGeometry(10, 10, 50, 50);
    Blinker ground(&window, QRect(0, 0, 100, 100));
    ground.setGeometry(150, 150, 100, 100);
    QLabel on_ground(QStringLiteral("on"), &ground);
    on_ground.setGeometry(10, 10, 50, 50);
    show(&window);
    const Findings findings = PanelAudit::idle(&window, watched_ms);
    QVERIFY(rulesOf(findings, &on_page).contains(painted));
    QVERIFY(rulesOf(findings, &ground).contains(painted));
    QCOMPARE(rulesOf(findings, &page) + rulesOf(findings, &window) + rulesOf(findings, &on_ground),
        QStringList());
}

void TestPanelAuditIdle::wasteIsFound()
{
    ON_PANEL;
    QWidget window;
    place(&window, 0, 0, 60, 60);
    Blinker careless(&window, QRect(0, 0, px(15, true), px(15, false)));
    careless.setProperty("hoxq_blinks", true);
    place(&careless, 2, 2, 20, 20);
    Blinker careful(&window, QRect(0, 0, px(4, true), px(4, false)));
    careful.setProperty("hoxq_blinks", true);
    place(&careful, 30, 2, 20, 20);
    show(&window);
    const Findings findings = PanelAudit::idle(&window, watched_ms);
    QCOMPARE(rulesOf(findings, &careless), { wasted });
    QCOMPARE(rulesOf(findings, &careful), QStringList());
    QVERIFY2(findings.first().text.endsWith(QStringLiteral(" where 16 mm² changed")),
        qPrintable(findings.first().text));
}

void TestPanelAuditIdle::timersAndWakeUpsAreFound()
{
    QWidget window;
    window.resize(200, 200);
    QWidget other;
    show(&window);
    QTimer of_the_application;
    of_the_application.start(20);
    QTimer of_another_window(&other);
    of_another_window.start(20);
    QTimer once;
    once.setSingleShot(true);
    once.start(20);
    const Findings findings = PanelAudit::idle(&window, watched_ms);
    QCOMPARE(rulesOf(findings, &window), { ticked });
    of_the_application.setProperty("hoxq_blinks", true);
    of_another_window.stop();
    QCOMPARE(PanelAudit::report(PanelAudit::idle(&window, watched_ms)), QString());
    of_the_application.stop();
    std::thread worker([&] {
        for (int i = 0; i < 30; ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
            QMetaObject::invokeMethod(&other, [] {});
        }
    });
    const Findings of_worker = PanelAudit::idle(&window, watched_ms);
    worker.join();
    QCOMPARE(rulesOf(of_worker, &window), { ticked });
    QVERIFY2(of_worker.first().text.startsWith(QStringLiteral("woke up ")),
        qPrintable(of_worker.first().text));
}

void TestPanelAuditIdle::cursorsMayBlink()
{
    const int flash_ms = QApplication::cursorFlashTime();
    QApplication::setCursorFlashTime(60);
    QWidget window;
    window.resize(300, 300);
    QLineEdit field(&window);
    field.resize(200, 30);
    VexoLineEdit own(&window);
    own.setGeometry(0, 100, 200, 30);
    show(&window);
    QApplication::setActiveWindow(&window);
    for (QLineEdit *each : QList<QLineEdit *>{ &field, &own }) {
        each->setFocus();
        QTRY_VERIFY(each->hasFocus());
        QCOMPARE(PanelAudit::report(PanelAudit::idle(&window, watched_ms)), QString());
    }
    QApplication::setCursorFlashTime(flash_ms);
}

void TestPanelAuditIdle::theWindowMayGo()
{
    QVERIFY(PanelAudit::idle(nullptr, watched_ms).isEmpty());
    const QPointer<QWidget> window = new QWidget;
    window->resize(200, 200);
    auto *busy = new Blinker(window, QRect(0, 0, 20, 20));
    show(window);
    QTimer::singleShot(60, busy, [=] { delete busy; });
    QTimer::singleShot(120, window, [=] { delete window; });
    QVERIFY(PanelAudit::idle(window, watched_ms).isEmpty());
    QVERIFY(!window);
}

QTEST_MAIN(TestPanelAuditIdle)
#include "tst_panelaudit_idle.moc"
