// SPDX-License-Identifier: MIT
#include "panelwindow.h"
#include "walk/walk.h"

#include "support/testcase.h"
#include "uitest/acceptedfindings.h"

#include <PageStack>
#include <Panel>
#include <PanelAudit>
#include <Soak>

#include <QAbstractButton>

using namespace vexo::hox::qt::panel;
using namespace vexo::hox::qt::ui;
using namespace vexo::hox::qt::uitest;

namespace {

/// Counts how often a page is painted.
class Paints : public QObject
{
public:
    explicit Paints(QObject *page) { page->installEventFilter(this); }

    int count = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

} // namespace

/// The application as a visitor uses it.
class TestPanelExample : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void visitorWalksThroughAllScreens();
    void screensAreGood_data();
    void screensAreGood();
    void eachAcceptedLineIsNeeded();
    void languageChangesWhatIsShown();
    void changeOfThePagePaintsItOnce();
    void leavesNothingBehind_data();
    void leavesNothingBehind();

private:
    std::unique_ptr<PanelWindow> m_panel;
    AcceptedFindings m_accepted;
};

void TestPanelExample::initTestCase()
{
    TestCase::initTestCase();
    PanelOptions options;
    options.px = QSize(800, 480);
    options.mm = QSizeF(160, 96);
    options.use_palette = false;
    options.sheets.clear();
    Panel::setUp(*qobject_cast<QApplication *>(qApp), options);
    QVERIFY(m_accepted.read(QStringLiteral(HOXQ_ACCEPTED_EXAMPLE)));
}

void TestPanelExample::init()
{
    TestCase::init();
    m_panel = std::make_unique<PanelWindow>();
    m_panel->resize(800, 480);
    m_panel->setLanguage("en");
    m_panel->show();
    QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
}

void TestPanelExample::cleanup()
{
    m_panel.reset();
    TestCase::cleanup();
}

void TestPanelExample::visitorWalksThroughAllScreens()
{
    QStringList steps;
    try {
        walk(m_panel.get(), [&](const QString &step) { steps += step; });
    } catch (const std::runtime_error &error) {
        QFAIL(qPrintable(steps.join(", ") + ": " + error.what()));
    }
    QCOMPARE(steps.last(), QString("The update"));
    QTRY_COMPARE_WITH_TIMEOUT(m_panel->stack()->name(), QString("start"), 20000);
}

void TestPanelExample::screensAreGood_data()
{
    QTest::addColumn<QString>("screen");
    QTest::addColumn<bool>("is_night");
    for (const QString &screen : PanelWindow::screens()) {
        QTest::newRow(qPrintable(screen)) << screen << false;
        QTest::newRow(qPrintable(screen + " by night")) << screen << true;
    }
}

void TestPanelExample::screensAreGood()
{
    QFETCH(QString, screen);
    QFETCH(bool, is_night);
    m_panel->setNight(is_night);
    m_panel->stack()->open(screen);
    QTest::qWait(0);
    const auto unexpected = m_accepted.others(PanelAudit::all(m_panel.get(), 100), screen);
    QVERIFY2(unexpected.isEmpty(), qPrintable(PanelAudit::report(unexpected)));
}

void TestPanelExample::eachAcceptedLineIsNeeded()
{
    QCOMPARE(m_accepted.needless(), QStringList());
}

void TestPanelExample::languageChangesWhatIsShown()
{
    const auto texts = [this] {
        QStringList all;
        for (const QAbstractButton *button : m_panel->findChildren<QAbstractButton *>())
            all += button->text();
        return all;
    };
    QVERIFY(texts().contains("Settings"));
    m_panel->setLanguage("de");
    QVERIFY(texts().contains("Einstellungen"));
    QVERIFY(!texts().contains("Settings"));
    m_panel->setLanguage("en");
    QVERIFY(texts().contains("Settings"));
}

// The start is kept, so it can be watched before it comes back.
void TestPanelExample::changeOfThePagePaintsItOnce()
{
    const Paints start(m_panel->stack()->page());
    m_panel->stack()->open("info");
    QTest::qWait(50);
    QCOMPARE(start.count, 0);
    m_panel->stack()->back();
    QTest::qWait(50);
    QEXPECT_FAIL("", "the start is painted twice when it comes back", Continue);
    QCOMPARE(start.count, 1);
}

void TestPanelExample::leavesNothingBehind_data()
{
    QTest::addColumn<QString>("screen");
    for (const QString &screen : PanelWindow::screens().mid(1))
        QTest::newRow(qPrintable(screen)) << screen;
}

// Of each screen; HOXQ_PAGE_CHANGES=2000 for the whole measure.
void TestPanelExample::leavesNothingBehind()
{
    QFETCH(QString, screen);
    const SoakResult result = soak(
        [&] {
            m_panel->stack()->open(screen);
            QCoreApplication::processEvents();
            m_panel->stack()->home();
            QCoreApplication::processEvents();
        },
        asked("HOXQ_PAGE_CHANGES", 500) / 2);
    QEXPECT_FAIL("contacts", "about 200 bytes stay of each opening", Continue);
    QVERIFY2(!result.isLeaking(), qPrintable(result.text()));
}

QTEST_MAIN(TestPanelExample)
#include "tst_panelexample.moc"
