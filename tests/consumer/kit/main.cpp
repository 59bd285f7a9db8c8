// SPDX-License-Identifier: MIT
#include <Finger>
#include <Panel>
#include <PanelAudit>
#include <Soak>
#include <VexoColors>
#include <VexoPushButton>

#include <QSignalSpy>
#include <QTest>

using namespace vexo::hox::qt;

/// The screen under test, on a panel of 7 inches.
struct Screen : QWidget
{
    Screen()
    {
        button.setText("Start");
        button.setBackgroundClickedColor(ui::VexoColors::C3); // the audit finds the default pale
        button.setGeometry(100, 100, 300, 80);
        resize(800, 480);
        show();
        QCoreApplication::processEvents();
    }

    ui::VexoPushButton button{ this };
};

class TestScreen : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        panel::PanelOptions options;
        options.px = QSize(800, 480);
        options.mm = QSizeF(152.4, 91.4);
        panel::Panel::setUp(*qApp, options);
    }

    void tapClicksOnce() // of a thumb that trembles, on a panel that bounces
    {
        Screen screen;
        const QSignalSpy clicks(&screen.button, &QAbstractButton::clicked);
        uitest::Finger thumb(&screen);
        thumb.setJitter(0.5).setWiggle(1).setBounce(30).tap(&screen.button);
        QCOMPARE(thumb.lastProblem(), QString());
        QCOMPARE(clicks.size(), 1);
    }

    void isFitForFingersAndEyes()
    {
        Screen screen;
        for (const uitest::Finding &finding : uitest::PanelAudit::all(&screen, 500))
            QVERIFY2(finding.severity != uitest::Finding::Error, qPrintable(finding.text));
    }

    void leavesNothingBehind()
    {
        const uitest::SoakResult result = uitest::soak([] { Screen screen; }, 60);
        QVERIFY2(!result.isLeaking(), qPrintable(result.text()));
    }
};

QTEST_MAIN(TestScreen)
#include "main.moc"
