// SPDX-License-Identifier: MIT
#define main panelMain // the pages of the program, which a test starts itself
#include "step7.cpp"
#undef main

#include <Finger>
#include <PanelAudit>

#include <QTemporaryDir>
#include <QTest>

using namespace vexo::hox::qt::uitest;

class PanelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
        QApplication::setOrganizationName("first-panel");
        Panel::setUp(*qApp, panelOf({ "", "800", "480", "160", "96" }));
    }

    void init()
    {
        QSettings().clear();
        m_pages = std::make_unique<PageStack>();
        m_pages->resize(ScalingInfo::inst()->m_pixels);
        addPages(m_pages.get());
        showLook(m_pages.get());
        m_pages->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_pages.get()));
    }

    void pagesAreFitForFingersAndEyes()
    {
        for (const char *page : { "Start", "Settings", "Your name" }) {
            m_pages->open(page);
            const auto findings = PanelAudit::all(m_pages.get(), 500);
            for (const Finding &finding : findings) {
                // Its handle is 6.4 mm, with nothing to touch around it.
                if (finding.severity == Finding::Error
                    && !qobject_cast<VexoSlider *>(finding.widget))
                    QFAIL(qPrintable(finding.text));
            }
        }
    }

    void tapOpensAndSwipeDoesNot() // also of a thumb that trembles
    {
        Finger thumb(m_pages.get());
        thumb.setJitter(0.5).setWiggle(1);
        const QPointF settings_in_mm(30, 80);
        thumb.slide(m_pages->page(), settings_in_mm, { 0, -40 }, 300);
        QCOMPARE(m_pages->name(), QString("Start"));
        thumb.tap(m_pages->page(), settings_in_mm);
        QCOMPARE(m_pages->name(), QString("Settings"));
    }

private:
    QTemporaryDir m_settings;
    std::unique_ptr<PageStack> m_pages;
};

QTEST_MAIN(PanelTest)
#include "paneltest.moc"
