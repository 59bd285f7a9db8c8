// SPDX-License-Identifier: MIT
#include "support/effort.h"
#include "support/onscreen.h"
#include "support/panelscale.h"
#include "support/testcase.h"
#include "ui/buttons/vexofunctionbutton.h"
#include "ui/buttons/vexopushbutton.h"
#include "ui/scrolling/vexoverticalscrollarea.h"
#include "ui/scrolling/vexoverticalscrollcontent.h"

#include <QPixmapCache>
#include <QScopeGuard>
#include <QScrollBar>

#include <malloc.h>

using namespace vexo::hox::qt::ui;

namespace {

const QString TEXT = "Contact %1 with a long name and a longer one";

QWidget *makeRow(int i)
{
    auto *row = new VexoFunctionButton(nullptr, VexoFunctionButton::ActionType);
    row->setText(TEXT.arg(i));
    return row;
}

QWidget *makePill(int i)
{
    auto *pill = new VexoPushButton;
    pill->setText(TEXT.arg(i));
    pill->setFixedHeight(98);
    return pill;
}

} // namespace

Q_DECLARE_METATYPE(std::function<QWidget *(int)>)

class TestLongList : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void scrollingThroughLeavesNothingBehind_data();
    void scrollingThroughLeavesNothingBehind();
};

void TestLongList::scrollingThroughLeavesNothingBehind_data()
{
    QTest::addColumn<std::function<QWidget *(int)>>("make");
    QTest::newRow("rows") << std::function<QWidget *(int)>(makeRow);
    QTest::newRow("push buttons") << std::function<QWidget *(int)>(makePill);
}

// Of what the rows that went by have drawn; the toolkit's cache is for icons.
void TestLongList::scrollingThroughLeavesNothingBehind()
{
    QFETCH(std::function<QWidget *(int)>, make);
    const int limit_kb = QPixmapCache::cacheLimit();
    const auto put_back = qScopeGuard([=] { QPixmapCache::setCacheLimit(limit_kb); });
    QPixmapCache::setCacheLimit(2048);
    PanelScale scale(10, 10);
    VexoVerticalScrollArea list;
    auto *content = new VexoVerticalScrollContent;
    for (int i = 0; i < 300; ++i)
        content->layout()->addWidget(make(i));
    list.setWidget(content);
    list.resize(1280, 800);
    list.show();
    settle();
    QPixmap icon(100, 100);
    icon.fill(Qt::green);
    const QPixmapCache::Key key = QPixmapCache::insert(icon);
    malloc_trim(0); // what was freed before would hide what grows
    const Effort effort;
    QScrollBar *bar = list.verticalScrollBar();
    for (; bar->value() < bar->maximum(); bar->setValue(bar->value() + 400))
        QCoreApplication::processEvents();
    QVERIFY(QPixmapCache::find(key, &icon));
    if (!Effort::IS_SANITIZED)
        QVERIFY2(effort.peakMb() <= 5, qPrintable(effort.text()));
}

QTEST_MAIN(TestLongList)
#include "tst_longlist.moc"
