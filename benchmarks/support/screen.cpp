// SPDX-License-Identifier: MIT
#include "benchmarks/support/screen.h"

#include "benchmarks/support/measure.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEventLoop>
#include <QFile>
#include <QImage>
#include <QLayout>
#include <QMouseEvent>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <limits>

namespace bench {

namespace {

// Counts the paint events of all widgets while it lives.
class PaintCounter : public QObject
{
public:
    PaintCounter() { qApp->installEventFilter(this); }
    int count() const { return m_count; }

    bool eventFilter(QObject *receiver, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && receiver->isWidgetType())
            ++m_count;
        return false;
    }

private:
    int m_count = 0;
};

std::string subject(const std::string &what)
{
    return HOXQ_BENCHMARK_SCREEN " " + what + " " HOXQ_BENCHMARK_VARIANT;
}

bool has_stages = false;

// With --stages the start is counted in parts; this ends one.
void endStage(const char *name)
{
    if (!has_stages)
        return;
    stopCounting(subject(name), 1);
    startCounting();
}

// What show() does, one step after the other.
void prepareInStages(QWidget *window)
{
    window->ensurePolished();
    const QList<QWidget *> children = window->findChildren<QWidget *>();
    for (const QWidget *child : children)
        child->ensurePolished();
    endStage("polish");
    if (window->layout())
        window->layout()->activate();
    endStage("layout");
}

void showFirstFrame(QWidget *window)
{
    const PaintCounter painted;
    window->resize(1280, 800);
    if (has_stages)
        prepareInStages(window);
    window->show();
    while (painted.count() == 0)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void measureStart(QWidget *window)
{
    showFirstFrame(window);
    const qint64 time = cpuTime();
    stopCounting(subject(has_stages ? "frame" : "start"), 1);
    if (!isCounting())
        print(subject("start"), "cpu", double(time));
}

void repeat(const Action &action, int times)
{
    for (int i = 0; i < times; ++i)
        action.run();
}

// Of several series the fastest is the least disturbed.
double fastestSeries(const Action &action, int times)
{
    qint64 fastest = std::numeric_limits<qint64>::max();
    for (int series = 0; series < 5; ++series) {
        const qint64 start = cpuTime();
        repeat(action, times);
        fastest = std::min(fastest, cpuTime() - start);
    }
    return double(fastest) / times;
}

// The first run fills the caches and shows that the action is seen at all.
void requirePainting(const Action &action)
{
    const PaintCounter painted;
    action.run();
    if (painted.count() == 0)
        qFatal("%s paints nothing", action.name.c_str());
}

void measure(const Action &action)
{
    const int times = 20;
    requirePainting(action);
    if (isCounting()) {
        startCounting();
        repeat(action, times);
        stopCounting(subject(action.name), times);
    } else {
        print(subject(action.name), "cpu", fastestSeries(action, times));
    }
}

void measureRest()
{
    const int longer_than_a_cursor_blink_ms = 1200;
    const PaintCounter painted;
    QEventLoop loop;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    timer.start(longer_than_a_cursor_blink_ms);
    loop.exec();
    print(subject("rest"), "repaints", painted.count());
}

void sendMouse(QWidget *widget, QEvent::Type type)
{
    const QPointF middle = QRectF(widget->rect()).center();
    const auto buttons = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    const QPointF place = widget->mapToGlobal(middle.toPoint());
    QMouseEvent event(type, middle, place, place, Qt::LeftButton, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
    QCoreApplication::processEvents();
}

void measureScreen(const Screen &screen)
{
    for (const Action &action : screen.actions)
        measure(action);
    if (isCounting())
        return;
    measureRest();
    print(subject("memory"), "memory", double(memory("VmHWM")));
    print(subject("memory"), "anonymous", double(memory("RssAnon")));
}

bool savePicture(QWidget *window, const char *file)
{
    showFirstFrame(window);
    if (auto *button = window->findChild<QAbstractButton *>())
        sendMouse(button, QEvent::MouseButtonPress);
    return window->grab().save(QFile::decodeName(file));
}

} // namespace

Action fullRepaint(QWidget *window)
{
    // repaint() would leave out what opaque children cover, and them.
    return { "repaint", [window, image = QImage()]() mutable {
                if (image.isNull())
                    image = QImage(window->size(), QImage::Format_RGB32);
                window->render(&image);
            } };
}

Action tick(QTimer *timer)
{
    return { "tick", [timer] {
                QMetaObject::invokeMethod(timer, "timeout");
                QCoreApplication::processEvents();
            } };
}

Action pressAndRelease(const std::vector<QWidget *> &buttons)
{
    return { "tap", [buttons, next = std::size_t(0)]() mutable {
                QWidget *button = buttons[next++ % buttons.size()];
                sendMouse(button, QEvent::MouseButtonPress);
                sendMouse(button, QEvent::MouseButtonRelease);
            } };
}

} // namespace bench

// Arguments: none, or --start to measure the start alone, or --stages to count the parts of it, or
// the name of a file for a picture of the screen with its first button held.
int main(int argc, char **argv)
{
    const QByteArray mode(argc > 1 ? argv[1] : "");
    bench::has_stages = mode == "--stages";
    bench::endStage("load");
    bench::prepareProcess();
    QApplication application(argc, argv);
    bench::endStage("application");
    bench::setUpFonts();
    bench::endStage("fonts");
    bench::setUpSheets();
    bench::endStage("sheets");
    const bench::Screen screen = bench::makeScreen();
    bench::endStage("widgets");
    if (!mode.isEmpty() && !mode.startsWith("--"))
        return bench::savePicture(screen.window.get(), argv[1]) ? 0 : 1;
    bench::measureStart(screen.window.get());
    if (mode.isEmpty())
        bench::measureScreen(screen);
    return 0;
}
