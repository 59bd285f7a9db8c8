// SPDX-License-Identifier: MIT
#include "support/testcase.h"
#include "ui/painting/renderingpair_p.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>
#include <vector>

using namespace vexo::hox::qt::ui;

namespace {

/// Shows a rendering of 40 kB as the parts of the library do.
struct Shower : public QWidget
{
    using QWidget::QWidget;

    /// Whether it had to be drawn.
    bool show(int look)
    {
        bool is_drawn = false;
        renderings.get(look, this, [&] {
            is_drawn = true;
            const auto fill = [](QPainter *painter) { painter->fillRect(0, 0, 100, 100, Qt::red); };
            drawn.push_back(rendered(QSize(100, 100), 1, fill));
            return Rendering{ drawn.back(), QPoint() };
        });
        return is_drawn;
    }
    /// Of all that were drawn, in this test function.
    static int countKept()
    {
        return int(std::count_if(drawn.begin(), drawn.end(),
            [](const QPixmap &pixmap) { return !pixmap.isDetached(); }));
    }

    static std::vector<QPixmap> drawn;
    RenderingPair<int> renderings;
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

std::vector<QPixmap> Shower::drawn;

} // namespace

class TestRenderingCache : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void keepsTwoLooksOfEach();
    void dropsWhatIsOutOfSight();
    void keepsAllThatIsSeen();
    void forgetsWithTheWidget();
};

void TestRenderingCache::cleanup()
{
    Shower::drawn.clear();
    TestCase::cleanup();
}

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
    QCOMPARE(Shower::countKept(), 2);
}

void TestRenderingCache::dropsWhatIsOutOfSight()
{
    Column column;
    const int most_kept = 22 + (1 << 20) / 40000 + 1; // those that are seen, and 1 MiB
    for (Shower *shower : column.showers) {
        column.area.ensureWidgetVisible(shower, 0, 0);
        shower->show(1);
        QVERIFY(Shower::countKept() <= most_kept);
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
        QCOMPARE(Shower::countKept(), 1);
    }
    QCOMPARE(Shower::countKept(), 0);
}

QTEST_MAIN(TestRenderingCache)
#include "tst_renderingcache.moc"
