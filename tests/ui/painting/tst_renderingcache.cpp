// SPDX-License-Identifier: MIT
#include "support/testcase.h"
#include "ui/painting/renderingpair_p.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <memory>
#include <vector>

using namespace vexo::hox::qt::ui;

namespace {

const int print_bytes = 100 * 100 * 4;

QPixmap picture()
{
    QPixmap pixmap(100, 100);
    pixmap.fill(Qt::red);
    return pixmap;
}

/// Shows a print as the parts of the library do.
struct Shower : public QWidget
{
    using QWidget::QWidget;

    /// Whether it had to be drawn.
    bool show(int look)
    {
        bool is_drawn = false;
        prints.get(look, this, [&] {
            is_drawn = true;
            return Rendering{ picture(), QPoint() };
        });
        return is_drawn;
    }

    RenderingPair<int> prints;
};

/// Of which one in ten is seen.
struct Column
{
    Column()
    {
        auto *content = new QWidget;
        auto *layout = new QVBoxLayout(content);
        for (int i = 0; i < 200; ++i) {
            showers.push_back(new Shower(content));
            showers.back()->setFixedHeight(20);
            layout->addWidget(showers.back());
        }
        area.setWidget(content);
        area.resize(100, content->height() / 10);
        area.show();
    }

    QScrollArea area;
    std::vector<Shower *> showers;
};

} // namespace

class TestRenderingCache : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTwoLooksOfEach();
    void dropsWhatIsOutOfSight();
    void keepsAllThatIsSeen();
    void forgetsWithTheWidget();
};

void TestRenderingCache::keepsTwoLooksOfEach()
{
    Shower shower;
    QVERIFY(shower.show(1));
    QVERIFY(shower.show(2));
    QVERIFY(!shower.show(1));
    QVERIFY(!shower.show(2));
    QVERIFY(shower.show(3)); // takes the place of the look used least
    QVERIFY(!shower.show(2));
    QVERIFY(shower.show(1));
    QCOMPARE(RenderingCache::inst().bytes(), qint64(2 * print_bytes));
}

void TestRenderingCache::dropsWhatIsOutOfSight()
{
    Column column;
    const int seen_bytes = 22 * print_bytes;
    for (Shower *shower : column.showers) {
        column.area.ensureWidgetVisible(shower, 0, 0);
        shower->show(1);
        QVERIFY(RenderingCache::inst().bytes() <= seen_bytes + (1 << 20) + print_bytes);
    }
    QVERIFY(!column.showers.back()->show(1));
    QVERIFY(column.showers.front()->show(1));
    column.area.hide(); // what is left is not seen either
    Shower other;
    std::vector<std::unique_ptr<Shower>> others(60);
    for (auto &shower : others) {
        shower = std::make_unique<Shower>();
        shower->show(1);
    }
    QVERIFY(column.showers.back()->show(1));
}

void TestRenderingCache::keepsAllThatIsSeen()
{
    QWidget window;
    std::vector<Shower *> showers;
    for (int i = 0; i < 100; ++i)
        showers.push_back(new Shower(&window));
    window.show();
    for (int round = 0; round < 3; ++round) {
        for (Shower *shower : showers)
            QCOMPARE(shower->show(1), round == 0); // 4 MB, but never drawn twice
    }
}

void TestRenderingCache::forgetsWithTheWidget()
{
    {
        Shower shower;
        shower.show(1);
        QVERIFY(RenderingCache::inst().bytes() > 0);
    }
    QCOMPARE(RenderingCache::inst().bytes(), qint64(0));
}

QTEST_MAIN(TestRenderingCache)
#include "tst_renderingcache.moc"
