// SPDX-License-Identifier: MIT
#include "docs/firststeps.h"

#include "panel/typist.h"
#include "support/find.h"
#include "support/testcase.h"
#include "uitest/acceptedfindings.h"

#include <Finger>
#include <PageStack>
#include <PanelAudit>
#include <PanelDialog>
#include <PanelNotice>
#include <ScalingInfo>
#include <VexoDesignVectorButton>
#include <VexoFunctionButton>
#include <VexoLineEdit>
#include <VexoPushButton>
#include <VexoSlider>
#include <VexoVerticalScrollArea>

#include <QDataStream>
#include <QFile>
#include <QScrollBar>
#include <QSettings>
#include <QTemporaryDir>

#include <cmath>

using namespace vexo::hox::qt::panel;
using namespace vexo::hox::qt::ui;
using namespace vexo::hox::qt::uitest;

namespace {

const QSizeF panel_in_mm(160, 96);

/// A step that runs, and who touches it.
struct Visit
{
    explicit Visit(QWidget *screen)
        : window(*screen)
        , finger(screen)
        , pages(qobject_cast<PageStack *>(screen))
    {
    }

    void tap(QWidget *target)
    {
        QVERIFY(target);
        finger.tap(target);
        QCOMPARE(finger.lastProblem(), QString());
    }

    void tapTile(const QString &text) { tap(byText<VexoDesignVectorButton>(window, text)); }
    void tapButton(const QString &text) { tap(byText<VexoPushButton>(window, text)); }

    VexoFunctionButton *row(const QString &text) const
    {
        return byText<VexoFunctionButton>(window, text);
    }

    /// As far as it goes.
    void scrollDown()
    {
        QCoreApplication::processEvents(); // the rows get their places
        auto *area = window.findChild<VexoVerticalScrollArea *>();
        area->verticalScrollBar()->setValue(area->verticalScrollBar()->maximum());
    }

    void typeName(const QString &name)
    {
        tapTile("Your name");
        QTRY_COMPARE(pages->name(), QString("Your name"));
        Typist(*window.findChild<OnScreenKeyboard *>(), &finger).type(name + "\n");
    }

    bool hasText(const QString &text) const
    {
        const auto labels = window.findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(),
            [&](const QLabel *label) { return label->isVisible() && label->text() == text; });
    }

    QWidget &window;
    Finger finger;
    PageStack *const pages;
};

// A step runs in a process of its own; what it finds goes through a file.
template <typename Value>
void write(const QString &path, const Value &value)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QDataStream stream(&file);
    stream << value;
}

template <typename Value>
Value read(const QString &path)
{
    QFile file(path);
    Value value;
    QDataStream stream(&file);
    if (file.open(QIODevice::ReadOnly))
        stream >> value;
    file.remove();
    return value;
}

/// What audits find there.
class Report
{
public:
    explicit Report(const QString &path)
        : m_path(path)
    {
    }

    void add(const QVector<Finding> &findings)
    {
        for (const Finding &finding : findings)
            m_lines += QStringList{ finding.rule, finding.where, finding.text };
        write(m_path, m_lines);
    }

    QVector<Finding> findings() const
    {
        QVector<Finding> findings;
        const auto lines = read<QStringList>(m_path);
        for (int i = 0; i + 2 < lines.size(); i += 3) {
            Finding finding;
            finding.rule = lines.at(i);
            finding.where = lines.at(i + 1);
            finding.text = lines.at(i + 2);
            findings += finding;
        }
        return findings;
    }

private:
    const QString m_path;
    QStringList m_lines;
};

/// Where all that is visible lies, mm in the window.
QVector<QRectF> placesIn(const QWidget &window)
{
    const QSizeF density = ScalingInfo::inst()->mm2px(QSizeF(1, 1));
    QVector<QRectF> places;
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        const QRectF px(widget->mapTo(&window, QPoint()), widget->size());
        if (widget->isVisible())
            places += QTransform::fromScale(1 / density.width(), 1 / density.height())
                          .mapRect(px & QRectF(window.rect()));
    }
    return places;
}

double farthest(const QRectF &a, const QRectF &b)
{
    return qMax(qMax(std::abs(a.left() - b.left()), std::abs(a.top() - b.top())),
        qMax(std::abs(a.right() - b.right()), std::abs(a.bottom() - b.bottom())));
}

} // namespace

/// Each program of the tutorial, run by its own main().
class TestFirstPanel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void comesUpFitForFingersAndEyes_data();
    void comesUpFitForFingersAndEyes();
    void eachAcceptedLineIsNeeded();
    void keepsItsPlacesInMillimetres_data();
    void keepsItsPlacesInMillimetres();
    void step1_tapClicks();
    void step2_swipeScrollsAndTogglesNothing();
    void step3_tileLeadsToAPageAndBack();
    void step4_keysArriveAndTheNameIsKept();
    void step5_resetAsksFirst();
    void step6_nightComesAndGoes();
    void step7_takesItsPanelFromTheArguments();

private:
    using Use = std::function<void(Visit &)>;

    // At 5 px/mm the whole panel lies on the screen offscreen; touches beside a screen are none.
    void visit(int step, const Use &use, double px_per_mm = 5);

    QTemporaryDir m_settings;
    AcceptedFindings m_accepted;
};

void TestFirstPanel::initTestCase()
{
    TestCase::initTestCase();
    qputenv("XDG_CONFIG_HOME", m_settings.path().toUtf8());
    QVERIFY(m_accepted.read(QStringLiteral(HOXQ_ACCEPTED_FIRST_PANEL)));
}

void TestFirstPanel::init()
{
    TestCase::init();
    QSettings("first-panel", "step").clear();
}

// The platform offscreen cannot tell a window's least size to anybody, and says so.
void TestFirstPanel::visit(int step, const Use &use, double px_per_mm)
{
    Messages messages;
    const auto touch = [&](QWidget *window) {
        Visit visit(window);
        use(visit);
        QStringList lines = messages.lines();
        lines.removeAll("warning default: This plugin does not support propagateSizeHints()");
        if (!lines.isEmpty())
            QTest::qFail(qPrintable(lines.join('\n')), __FILE__, __LINE__);
        return QTest::currentTestFailed() ? EXIT_FAILURE : EXIT_SUCCESS;
    };
    QCOMPARE(
        runFirstStep(step, (panel_in_mm * px_per_mm).toSize(), panel_in_mm, touch), EXIT_SUCCESS);
}

void TestFirstPanel::comesUpFitForFingersAndEyes_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<double>("px_per_mm");
    QTest::addColumn<bool>("is_night");
    for (int step = 1; step <= first_steps; ++step) {
        for (const double px_per_mm : { 5, 8, 12 })
            QTest::addRow("step %d at %g px/mm", step, px_per_mm) << step << px_per_mm << false;
        if (step >= 6)
            QTest::addRow("step %d by night", step) << step << 8.0 << true;
    }
}

// With all pages that it has, by day and by night.
void TestFirstPanel::comesUpFitForFingersAndEyes()
{
    QFETCH(int, step);
    QFETCH(double, px_per_mm);
    QFETCH(bool, is_night);
    QSettings("first-panel", "step").setValue("Night look", is_night);
    Report report(m_settings.filePath("report"));
    visit(
        step,
        [&](Visit &visit) {
            report.add(PanelAudit::all(&visit.window, 100));
            for (const char *page : { "Settings", "Your name" }) {
                if (visit.pages && visit.pages->open(page))
                    report.add(PanelAudit::all(&visit.window, 100));
            }
        },
        px_per_mm);
    const auto unexpected = m_accepted.others(report.findings(), QString::number(step));
    QVERIFY2(unexpected.isEmpty(), qPrintable(PanelAudit::report(unexpected)));
}

void TestFirstPanel::eachAcceptedLineIsNeeded()
{
    QCOMPARE(m_accepted.needless(), QStringList());
}

void TestFirstPanel::keepsItsPlacesInMillimetres_data()
{
    QTest::addColumn<int>("step");
    for (int step = 1; step <= first_steps; ++step)
        QTest::addRow("step %d", step) << step;
}

// Rows add up whole pixels and a line of one, so that the last ones differ by a millimetre.
void TestFirstPanel::keepsItsPlacesInMillimetres()
{
    QFETCH(int, step);
    const QString file = m_settings.filePath("places");
    QVector<QRectF> first;
    for (const double px_per_mm : { 5, 8, 12 }) {
        visit(
            step,
            [&](Visit &visit) {
                if (visit.pages)
                    visit.pages->open("Settings");
                write(file, placesIn(visit.window));
            },
            px_per_mm);
        const auto places = read<QVector<QRectF>>(file);
        if (first.isEmpty())
            first = places;
        QVERIFY(!first.isEmpty());
        QCOMPARE(places.size(), first.size());
        for (int i = 0; i < places.size(); ++i)
            QVERIFY2(farthest(places.at(i), first.at(i)) < 1.6, QByteArray::number(i));
    }
}

void TestFirstPanel::step1_tapClicks()
{
    visit(1, [](Visit &visit) {
        auto *button = visit.window.findChild<VexoPushButton *>();
        const QSignalSpy clicks(button, &QAbstractButton::clicked);
        visit.tap(button);
        QCOMPARE(clicks.size(), 1);
    });
}

void TestFirstPanel::step2_swipeScrollsAndTogglesNothing()
{
    visit(2, [](Visit &visit) {
        const auto *bar = visit.window.findChild<VexoVerticalScrollArea *>()->verticalScrollBar();
        visit.finger.slide(visit.row("Weather"), { 40, 5 }, { 0, -12 }, 300);
        QTRY_VERIFY(bar->value() > 0);
        QVERIFY(!visit.row("Weather")->getButtonInstance()->isChecked());
        const int before = bar->value();
        auto *slider = visit.window.findChild<VexoSlider *>(); // its handle stands at 60 %
        visit.finger.slide(slider, { 20, 3 }, { 0, 8 }, 300);
        QTRY_VERIFY(bar->value() < before);
        visit.tap(visit.row("Weather"));
        QTRY_VERIFY(visit.row("Weather")->getButtonInstance()->isChecked());
    });
}

void TestFirstPanel::step3_tileLeadsToAPageAndBack()
{
    visit(3, [](Visit &visit) {
        auto *light = byText<VexoDesignVectorButton>(visit.window, "Light");
        visit.tap(light);
        QVERIFY(light->isChecked());
        visit.tapTile("Settings");
        QCOMPARE(visit.pages->name(), QString("Settings"));
        visit.tapTile("Back");
        QCOMPARE(visit.pages->name(), QString("Start"));
        QVERIFY(light->isChecked());
    });
}

void TestFirstPanel::step4_keysArriveAndTheNameIsKept()
{
    visit(4, [](Visit &visit) {
        QVERIFY(visit.hasText("Good morning"));
        visit.typeName("Anna");
        QCOMPARE(visit.pages->name(), QString("Start"));
        QVERIFY(visit.hasText("Good morning, Anna"));
        visit.tapTile("Settings");
        visit.tap(visit.row("Key tone"));
        QTRY_VERIFY(!visit.row("Key tone")->getButtonInstance()->isChecked());
    });
    visit(4, [](Visit &visit) {
        QVERIFY(visit.hasText("Good morning, Anna"));
        visit.pages->open("Settings");
        QVERIFY(!visit.row("Key tone")->getButtonInstance()->isChecked());
        QVERIFY(visit.row("Wake at a touch")->getButtonInstance()->isChecked());
    });
}

void TestFirstPanel::step5_resetAsksFirst()
{
    visit(5, [](Visit &visit) {
        visit.typeName("Anna");
        for (const char *answer : { "Cancel", "Reset" }) {
            QVERIFY(visit.hasText("Good morning, Anna"));
            visit.tapTile("Settings");
            visit.scrollDown();
            visit.tapTile("Reset ...");
            QTRY_VERIFY(visit.window.findChild<PanelDialog *>());
            visit.tapButton(answer);
            QTRY_VERIFY(!visit.window.findChild<PanelDialog *>());
            visit.pages->home();
        }
        QVERIFY(visit.hasText("Good morning"));
        QVERIFY(visit.window.findChild<PanelNotice *>()->isVisible());
    });
}

void TestFirstPanel::step6_nightComesAndGoes()
{
    const auto isDark = [](QWidget &window) {
        const QImage picture = window.grab().toImage();
        return picture.pixelColor(picture.width() / 2, picture.height() / 3).lightness() < 128;
    };
    visit(6, [&](Visit &visit) {
        visit.tapTile("Settings");
        QVERIFY(!isDark(visit.window));
        visit.scrollDown();
        visit.tap(visit.row("Night look"));
        QTRY_VERIFY(isDark(visit.window));
    });
    visit(6, [&](Visit &visit) {
        QVERIFY(isDark(visit.window));
        visit.tapTile("Settings");
        visit.scrollDown();
        visit.tap(visit.row("Night look"));
        QTRY_VERIFY(!isDark(visit.window));
    });
}

void TestFirstPanel::step7_takesItsPanelFromTheArguments()
{
    const auto isAsked = [](const Visit &visit) {
        QCOMPARE(visit.window.size(), QSize(1920, 1152));
        QCOMPARE(ScalingInfo::inst()->mm2px_X(10), 120.0f);
    };
    visit(7, isAsked, 12);
}

QTEST_APPLESS_MAIN(TestFirstPanel)
#include "tst_firstpanel.moc"
