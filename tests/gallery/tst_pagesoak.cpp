// SPDX-License-Identifier: MIT
#include "gallery/page.h"
#include "gallery/pagelist.h"
#include "support/testcase.h"

#include <Finger>
#include <Panel>
#include <Soak>

#include <QAbstractButton>
#include <QScrollArea>
#include <QStackedWidget>

using namespace vexo::hox::qt;

class TestPageSoak : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void leavesNothingBehind_data();
    void leavesNothingBehind();
};

void TestPageSoak::leavesNothingBehind_data()
{
    QTest::addColumn<int>("page");
    for (int i = 0; i < pageList().size(); ++i)
        QTest::newRow(qPrintable(pageList().at(i).name)) << i;
}

namespace {

void useAndClose(QScrollArea *area, int index)
{
    const std::unique_ptr<Page> page(pageList().at(index).build());
    area->setWidget(page.get());
    QCoreApplication::processEvents();
    uitest::Finger finger(area->window());
    const auto buttons = page->findChildren<QAbstractButton *>();
    for (int i = 0; i < qMin(3, buttons.size()); ++i)
        finger.tap(buttons.at(i));
    area->takeWidget();
}

} // namespace

// HOXQ_SOAK_ROUNDS makes it longer. In a short one caches still fill, so only what is larger
// counts.
void TestPageSoak::leavesNothingBehind()
{
    QFETCH(int, page);
    const int rounds = asked("HOXQ_SOAK_ROUNDS", 30);
    panel::PanelOptions options;
    options.px = QSize(800, 480);
    options.mm = QSizeF(152, 91);
    panel::Panel::setUp(*qApp, options);
    QWidget window;
    window.resize(*options.px);
    QScrollArea area(&window);
    area.setWidgetResizable(true);
    area.resize(window.size());
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const uitest::SoakResult result = uitest::soak([&] { useAndClose(&area, page); }, rounds);
    const bool is_long = rounds >= 2000;
    const bool is_small = result.growth.heap_bytes < 16384;
    QVERIFY2(result.growth.objects < 0.1 && result.growth.handles < 0.1 && is_small,
        qPrintable(result.text()));
    QVERIFY2(!is_long || !result.isLeaking(), qPrintable(result.text()));
}

QTEST_MAIN(TestPageSoak)
#include "tst_pagesoak.moc"
