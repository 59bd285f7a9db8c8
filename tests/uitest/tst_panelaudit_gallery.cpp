// SPDX-License-Identifier: MIT
#include "gallery/mainwindow.h"
#include "gallery/pagelist.h"
#include "support/testcase.h"
#include "uitest/auditing.h"

#include <Panel>

#include <QApplication>

using namespace auditing;
using namespace vexo::hox::qt::ui;
using vexo::hox::qt::uitest::PanelAudit;

class TestPanelAuditGallery : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void pagesAreGood_data();
    void pagesAreGood();
};

void TestPanelAuditGallery::initTestCase()
{
    TestCase::initTestCase();
    PanelOptions options;
    options.px = QSize(1280, 800);
    options.mm = QSizeF(160, 100);
    Panel::setUp(*qobject_cast<QApplication *>(qApp), options);
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
    window.resize(ScalingInfo::inst()->m_pixels);
    window.show();
    window.showPage(page);
    window.showWholePage();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const Findings findings = PanelAudit::all(&window, 0);
    qDebug().noquote() << PanelAudit::report(findings);
}

QTEST_MAIN(TestPanelAuditGallery)
#include "tst_panelaudit_gallery.moc"
