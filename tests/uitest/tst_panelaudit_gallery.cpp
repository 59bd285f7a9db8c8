// SPDX-License-Identifier: MIT
#include "gallery/mainwindow.h"
#include "gallery/pagelist.h"
#include "support/testcase.h"
#include "uitest/acceptedfindings.h"
#include "uitest/auditing.h"

#include <Panel>

#include <QElapsedTimer>

using namespace auditing;
using namespace vexo::hox::qt::panel;
using namespace vexo::hox::qt::ui;

namespace {

void open(MainWindow *window, int page)
{
    window->resize(ScalingInfo::inst()->m_pixels);
    window->show();
    window->showPage(page);
}

} // namespace

/// The pages of the gallery are a good example, but for what accepted.txt names.
class TestPanelAuditGallery : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void pagesAreGood_data();
    void pagesAreGood();
    void eachAcceptedLineIsNeeded();
    void settingsTakeAMoment();

private:
    AcceptedFindings m_accepted;
};

void TestPanelAuditGallery::initTestCase()
{
    TestCase::initTestCase();
    PanelOptions options;
    options.px = QSize(1280, 800);
    options.mm = QSizeF(160, 100);
    Panel::setUp(*qobject_cast<QApplication *>(qApp), options);
    QVERIFY(m_accepted.read(QStringLiteral(HOXQ_ACCEPTED)));
}

void TestPanelAuditGallery::pagesAreGood_data()
{
    QTest::addColumn<int>("page");
    for (int i = 0; i < pageList().size(); ++i)
        QTest::newRow(qPrintable(pageList().at(i).name)) << i;
}

void TestPanelAuditGallery::pagesAreGood()
{
    QFETCH(int, page);
    MainWindow window;
    open(&window, page);
    window.showWholePage();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    window.setFocus(); // no cursor blinks
    PanelAudit::texts(&window); // the sliders come to rest in their second layout only
    const QImage before = window.grab().toImage();
    const auto unexpected
        = m_accepted.others(PanelAudit::all(&window, 100), pageList().at(page).name);
    QVERIFY2(unexpected.isEmpty(), qPrintable(PanelAudit::report(unexpected)));
    QTRY_COMPARE(window.grab().toImage(), before); // some cursors blink
}

void TestPanelAuditGallery::eachAcceptedLineIsNeeded()
{
    QCOMPARE(m_accepted.needless(), QStringList());
}

// Of its twelve rows and a stepper; what the screen costs once is the measure.
void TestPanelAuditGallery::settingsTakeAMoment()
{
    MainWindow window;
    open(&window, pageNames().indexOf("settings"));
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const auto time = [](const std::function<void()> &run) {
        qint64 best_ns = std::numeric_limits<qint64>::max();
        for (int i = 0; i < 5; ++i) {
            QElapsedTimer timer;
            timer.start();
            run();
            best_ns = qMin(best_ns, timer.nsecsElapsed());
        }
        return double(best_ns);
    };
    QImage picture(window.size(), QImage::Format_RGB32);
    const double render = time([&] { window.render(&picture); });
    const double all = time([&] { PanelAudit::all(&window, 0); });
    qInfo("all() takes as long as %.0f renderings, %.0f ms", all / render, all / 1e6);
    const double most = 500; // of 0.6 ms each
    QVERIFY2(all / render < most, qPrintable(QString::number(all / render)));
}

QTEST_MAIN(TestPanelAuditGallery)
#include "tst_panelaudit_gallery.moc"
