// SPDX-License-Identifier: MIT
#include "panelwindow.h"
#include "walk/walk.h"

#include "support/onscreen.h"
#include "support/testcase.h"
#include "uitest/acceptedfindings.h"

#include <PageStack>
#include <Panel>
#include <PanelAudit>
#include <Soak>
#include <VexoVerticalScrollArea>

#include <QAbstractButton>
#include <QPointer>

using namespace vexo::hox::qt::panel;
using namespace vexo::hox::qt::ui;
using namespace vexo::hox::qt::uitest;

namespace {

/// Counts how often each widget is painted.
class Paints : public QObject
{
public:
    Paints() { qApp->installEventFilter(this); }

    /// Those of \a page or in it that were painted more than once.
    QStringList repeated(const QWidget *page) const
    {
        QStringList names;
        for (const QPointer<QWidget> &widget : m_painted) {
            if (widget && m_painted.count(widget) > 1
                && (widget == page || page->isAncestorOf(widget)))
                names += widget->metaObject()->className();
        }
        return names;
    }
    int count() const { return m_painted.size(); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && watched->isWidgetType())
            m_painted += static_cast<QWidget *>(watched);
        return false;
    }

private:
    QVector<QPointer<QWidget>> m_painted;
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
    void languageChangesWhatTheLibrariesSay();
    void changeOfThePagePaintsItOnce_data();
    void changeOfThePagePaintsItOnce();
    void leavesNothingBehind_data();
    void leavesNothingBehind();

private:
    std::unique_ptr<PanelWindow> m_panel;
    AcceptedFindings m_accepted;
};

static void addScreens(const QStringList &screens)
{
    QTest::addColumn<QString>("screen");
    for (const QString &screen : screens)
        QTest::newRow(qPrintable(screen)) << screen;
}

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

// The keyboard in the search, and the number of seconds in the settings.
void TestPanelExample::languageChangesWhatTheLibrariesSay()
{
    const auto says = [this](const QString &name) {
        for (const QWidget *widget : m_panel->findChildren<QWidget *>()) {
            if (widget->accessibleName() == name)
                return true;
        }
        return false;
    };
    for (const char *screen : { "contacts", "settings" }) {
        const bool is_search = qstrcmp(screen, "contacts") == 0;
        m_panel->stack()->open(screen);
        QVERIFY(says(is_search ? "Hide keyboard" : "Decrease"));
        m_panel->setLanguage("de");
        QTRY_VERIFY(says(is_search ? "Tastatur ausblenden" : "Verringern"));
        m_panel->setLanguage("en");
        QTRY_VERIFY(says(is_search ? "Hide keyboard" : "Decrease"));
    }
}

void TestPanelExample::changeOfThePagePaintsItOnce_data()
{
    addScreens({ "contacts", "settings", "info", "pin" }); // on which nothing moves
}

void TestPanelExample::changeOfThePagePaintsItOnce()
{
    QFETCH(QString, screen);
    settle();
    const Paints there;
    m_panel->stack()->open(screen);
    settle();
    QVERIFY(there.count() > 0);
    QCOMPARE(there.repeated(m_panel->stack()->page()), QStringList());
    const Paints back;
    m_panel->stack()->back();
    QCoreApplication::processEvents(); // it is painted before the other one is deleted
    settle();
    QVERIFY(back.count() > 0);
    QCOMPARE(back.repeated(m_panel->stack()->page()), QStringList());
}

void TestPanelExample::leavesNothingBehind_data()
{
    addScreens(PanelWindow::screens().mid(1));
}

// Of each screen; HOXQ_PAGE_CHANGES=2000 for the whole measure. The toolkit keeps the recognizer of
// a scroller that nobody has touched, 16 bytes, of which the heap makes 32.
void TestPanelExample::leavesNothingBehind()
{
    QFETCH(QString, screen);
    m_panel->stack()->open(screen);
    const int scrollers = m_panel->findChildren<VexoVerticalScrollArea *>().size();
    const auto round = [&] {
        m_panel->stack()->open(screen);
        QCoreApplication::processEvents();
        m_panel->stack()->home();
        QCoreApplication::processEvents();
    };
    const int rounds = asked("HOXQ_PAGE_CHANGES", 500) / 2;
    SoakResult result;
    // What fills a cache of the toolkit ends, a leak does not.
    for (const int longer : { 1, 3 }) {
        result = soak(round, longer * rounds);
        result.growth.heap_bytes -= 32 * scrollers;
        if (!result.isLeaking())
            break;
    }
    QVERIFY2(!result.isLeaking(), qPrintable(result.text()));
}

QTEST_MAIN(TestPanelExample)
#include "tst_panelexample.moc"
