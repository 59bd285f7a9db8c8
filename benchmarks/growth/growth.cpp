// SPDX-License-Identifier: MIT
#include "benchmarks/growth/growth.h"

#include "benchmarks/support/measure.h"
#include "benchmarks/support/screen.h"

#include <QApplication>
#include <QImage>
#include <QPixmapCache>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <malloc.h>

#include <cstdlib>
#include <memory>

namespace bench {

namespace {

const int repaints = 5;
const int scroll_steps = 20;
const int step_px = 40;

qint64 heap()
{
    QPixmapCache::clear(); // which bounds itself
    const struct mallinfo2 all = mallinfo2();
    return qint64(all.uordblks) + qint64(all.hblkhd);
}

std::unique_ptr<QWidget> makeWindow(const Kind &kind, int count)
{
    auto window = std::make_unique<QWidget>();
    window->resize(1280, 800);
    auto *layout = new QVBoxLayout(window.get());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(kind.make(count));
    return window;
}

// Of a screen with many widgets of one kind, each step once.
class Growth
{
public:
    Growth(Kind kind, int count)
        : m_kind(std::move(kind))
        , m_count(count)
    {
    }

    void measureSteps()
    {
        step("construct", 1, [this] { m_window = makeWindow(m_kind, m_count); });
        step("show", 1, [this] { m_window->show(); });
        measureScreen();
        step("restyle", 1, restyle);
        step("destroy", 1, [this] { m_window.reset(); });
    }

    void measureBytes()
    {
        const qint64 before = heap();
        m_window = makeWindow(m_kind, m_count);
        m_window->show();
        QCoreApplication::processEvents();
        print(subject("bytes"), "bytes", double(heap() - before) / m_count);
    }

private:
    std::string subject(const std::string &what) const
    {
        return "growth-" + m_kind.name + '-' + std::to_string(m_count) + ' ' + what
            + " " HOXQ_BENCHMARK_VARIANT;
    }

    template <typename Run>
    void step(const char *name, int times, Run run)
    {
        startCounting();
        const qint64 start = cpuTime();
        for (int i = 0; i < times; ++i) {
            run();
            QCoreApplication::processEvents();
        }
        const qint64 end = cpuTime();
        stopCounting(subject(name), times);
        if (!isCounting())
            print(subject(name), "cpu", double(end - start) / times);
    }

    void measureScreen()
    {
        QImage image(m_window->size(), QImage::Format_RGB32);
        m_window->render(&image);
        step("repaint", repaints, [&] { m_window->render(&image); });
        QScrollBar *const bar = m_window->findChild<QAbstractScrollArea *>()->verticalScrollBar();
        const auto scroll = [bar](int px) { bar->setValue(bar->value() + px); };
        scroll(step_px);
        step("reveal", scroll_steps, [&] { scroll(step_px); });
        // To and fro over what was seen before.
        step("scroll", 2 * scroll_steps,
            [&, i = 0]() mutable { scroll(i++ < scroll_steps ? -step_px : step_px); });
    }

    const Kind m_kind;
    const int m_count;
    std::unique_ptr<QWidget> m_window;
};

} // namespace

QWidget *makeColumn(int count, const std::function<QWidget *()> &make)
{
    auto *area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    auto *content = new QWidget;
    auto *column = new QVBoxLayout(content);
    column->setSpacing(0);
    column->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i < count; ++i)
        column->addWidget(make());
    area->setWidget(content);
    return area;
}

QString stockStyleSheet()
{
    return QStringLiteral(
        "QPushButton { border: 2px solid #b4b4b4; border-radius: 30px; color: #3c3c3c;"
        " background: #f5f5f5; font: 300 34px; }"
        "QPushButton:pressed { color: white; background: #505050; }"
        "QToolButton { border: none; }"
        "QFrame { background: transparent; }"
        "QLabel { color: #3c3c3c; background: white; font: 500 24px; padding-left: 30px; }"
        "QLineEdit { background: white; color: #3c3c3c; border: 2px solid #b4b4b4;"
        " border-radius: 30px; padding: 0 28px; font: 500 31px; }"
        "#row { border: none; padding: 0 30px; text-align: left; font: 500 31px;"
        " image: url(:/widgetimages/VexoIconGeneralArrowListRight_44px_C3.svg);"
        " image-position: right; }");
}

} // namespace bench

// Arguments: KIND COUNT, and "bytes" to count those in place of the steps.
int main(int argc, char **argv)
{
    bench::prepareProcess();
    const QApplication application(argc, argv);
    // The library needs it, and so the ground of both lists is the window's, as their sheets say.
    QCoreApplication::setAttribute(Qt::AA_UseStyleSheetPropagationInWidgetStyles);
    bench::setUpPanel();
    for (const bench::Kind &kind : bench::kinds()) {
        if (argc < 3 || kind.name != argv[1])
            continue;
        bench::Growth growth(kind, std::atoi(argv[2]));
        if (argc == 3)
            growth.measureSteps();
        else
            growth.measureBytes();
        return 0;
    }
    return 1;
}
