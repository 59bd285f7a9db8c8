// SPDX-License-Identifier: MIT
#include "support/panelscale.h"
#include "support/testcase.h"

#include <UpdateMainWindow>
#include <UpdatePage>

using namespace vexo::hox::qt::ui;

/// UpdateMainWindow and UpdatePage.
class TestUpdateMainWindow : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isHiddenAndOfPhysicalSize();
    void pageIsCentred();

private:
    const PanelScale m_scale{ 10, 20 };
};

void TestUpdateMainWindow::isHiddenAndOfPhysicalSize()
{
    const UpdateMainWindow window(nullptr, 152.0F, 95.09F);
    QVERIFY(window.isHidden());
    QCOMPARE(window.minimumSize(), QSize(1520, 1901));
    QCOMPARE(window.maximumSize(), QSize(1520, 1901));
    const auto *page = window.findChild<UpdatePage *>("UpdatePage");
    QVERIFY(page && page->parentWidget() == window.centralWidget());
    QCOMPARE(page->minimumSize(), QSize(1520, 1901));
    QCOMPARE(window.windowTitle(), "MainWindow");
    for (float mm : { -1.0F, std::numeric_limits<float>::quiet_NaN(), 1e30F })
        UpdateMainWindow(nullptr, mm, mm);
}

void TestUpdateMainWindow::pageIsCentred()
{
    UpdatePage page;
    const auto *logo = page.findChild<QLabel *>("VexoIconLabel");
    const auto *text = page.findChild<QLabel *>("VexoSubTextLabel");
    page.resize(800, 1000);
    page.layout()->activate();
    QCOMPARE(logo->pixmap(Qt::ReturnByValue).size(), QSize(183, 51));
    QCOMPARE(logo->height(), 140);
    QCOMPARE(text->text(), "Updating ...");
    QCOMPARE(text->font().pointSize(), 10);
    QCOMPARE(text->y() - logo->geometry().bottom() - 1, 120);
    QVERIFY(qAbs(logo->y() - (999 - text->geometry().bottom())) <= 1);
}

QTEST_MAIN(TestUpdateMainWindow)
#include "tst_updatemainwindow.moc"
