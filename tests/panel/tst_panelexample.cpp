// SPDX-License-Identifier: MIT
#include "panelwindow.h"
#include "walk/walk.h"

#include "support/testcase.h"

#include <PageStack>
#include <Panel>
#include <PanelAudit>
#include <Soak>

#include <QAbstractButton>
#include <QFile>
#include <QRegularExpression>

using namespace vexo::hox::qt::ui;
using namespace vexo::hox::qt::uitest;

namespace {

/// A line of accepted_example.txt.
struct Accepted
{
    QRegularExpression screen;
    QString rule;
    QRegularExpression what;
    QString line;
    bool is_needed = false;
};

QVector<Accepted> readAccepted()
{
    QVector<Accepted> accepted;
    QFile file(QStringLiteral(HOXQ_ACCEPTED_EXAMPLE));
    if (!file.open(QIODevice::ReadOnly))
        return accepted;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const QStringList parts = line.split(" | ");
        if (parts.size() == 4 && !line.startsWith(QLatin1Char('#')))
            accepted.append({ QRegularExpression(QRegularExpression::anchoredPattern(parts.at(0))),
                parts.at(1), QRegularExpression(parts.at(2)), line });
    }
    return accepted;
}

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
    QVector<Accepted> m_accepted;
};

void TestPanelExample::initTestCase()
{
    TestCase::initTestCase();
    PanelOptions options;
    options.px = QSize(800, 480);
    options.mm = QSizeF(160, 96);
    options.use_palette = false;
    options.use_mm_sheet = false;
    options.sheets.clear();
    Panel::setUp(*qobject_cast<QApplication *>(qApp), options);
    m_accepted = readAccepted();
    QVERIFY(!m_accepted.isEmpty());
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
    QVector<Finding> unexpected;
    const QVector<Finding> findings = PanelAudit::all(m_panel.get(), 100);
    for (const Finding &finding : findings) {
        bool is_accepted = false;
        for (Accepted &accepted : m_accepted) {
            const bool is_this = accepted.screen.match(screen).hasMatch()
                && accepted.rule == finding.rule
                && accepted.what.match(finding.where + ": " + finding.text).hasMatch();
            accepted.is_needed = accepted.is_needed || is_this;
            is_accepted = is_accepted || is_this;
        }
        if (!is_accepted)
            unexpected.append(finding);
    }
    QVERIFY2(unexpected.isEmpty(), qPrintable(PanelAudit::report(unexpected)));
}

void TestPanelExample::eachAcceptedLineIsNeeded()
{
    for (const Accepted &accepted : qAsConst(m_accepted))
        QVERIFY2(accepted.is_needed, qPrintable(accepted.line));
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
