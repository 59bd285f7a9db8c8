// SPDX-License-Identifier: MIT
#include "uitest/soak.h"

#include "uitest/soakmeter_p.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QStringList>
#include <QVBoxLayout>

namespace vexo::hox::qt::uitest {

namespace {

const int looks = 10;
const int steps = looks / 2 * 3; // one long, of two, and one short in turn
const int least_warmup = 20;
const double byte_error = 40; // what the toolkit keeps at times
const double count_error = 0.05;

void run(const std::function<void()> &round, int rounds)
{
    for (int i = 0; i < rounds; ++i) {
        round();
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

SoakGrowth measure(const std::function<void()> &round, int rounds)
{
    const ObjectCounter counter;
    run(round, qMax(least_warmup, rounds / 10));
    emptyPixmapCache();
    QVector<QPointF> heap, objects, cache, handles;
    int passed = 0;
    for (int i = 0; i < looks; ++i) {
        // What enters the cache in each round is more after a long time than after a short one.
        const int step = rounds / steps * (i % 2 == 0 ? 2 : 1);
        run(round, step);
        passed += step;
        const double with_cache = Holdings::now().heap_bytes;
        emptyPixmapCache();
        const Holdings holdings = Holdings::now();
        heap.append({ double(passed), holdings.heap_bytes });
        objects.append({ double(passed), holdings.objects });
        cache.append({ double(step), with_cache - holdings.heap_bytes });
        handles.append({ double(passed), holdings.handles });
    }
    return { medianSlope(heap), medianSlope(objects), medianSlope(cache), medianSlope(handles) };
}

void openToolkitsOwn()
{
    QWidget window;
    auto *column = new QVBoxLayout(new QWidget(&window));
    column->addWidget(new QPushButton(QStringLiteral("OK")));
    column->addWidget(new QLineEdit);
    window.show();
    QCoreApplication::processEvents();
}

QString amount(double value, const char *unit)
{
    return QStringLiteral("%1 %2").arg(value, 0, 'f', value < 10 ? 2 : 0).arg(QLatin1String(unit));
}

} // namespace

bool SoakResult::isLeaking() const
{
    return growth.heap_bytes > qMax(0.0, floor.heap_bytes) + byte_error
        || growth.cache_bytes > qMax(0.0, floor.cache_bytes) + byte_error
        || growth.objects > qMax(0.0, floor.objects) + count_error
        || growth.handles > qMax(0.0, floor.handles) + count_error;
}

QString SoakResult::text() const
{
    QStringList grown;
    const auto note = [&](double value, double base, double error, const char *unit) {
        if (value > qMax(0.0, base) + error)
            grown += QStringLiteral("%1 (the toolkit alone %2)")
                         .arg(amount(value, unit), amount(base, unit));
    };
    note(growth.heap_bytes, floor.heap_bytes, byte_error, "bytes of heap");
    note(growth.objects, floor.objects, count_error, "objects");
    note(growth.cache_bytes, floor.cache_bytes, byte_error, "bytes in the pixmap cache");
    note(growth.handles, floor.handles, count_error, "open files");
    if (grown.isEmpty())
        return QStringLiteral("nothing grew in %1 rounds").arg(rounds);
    return QStringLiteral("each of %1 rounds left behind %2")
        .arg(rounds)
        .arg(grown.join(QLatin1String(", ")));
}

SoakResult soak(const std::function<void()> &round, int rounds)
{
    if (!round)
        return SoakResult();
    const int measured = qMax(2, (rounds + steps - 1) / steps) * steps;
    SoakResult result;
    result.floor = measure(openToolkitsOwn, measured);
    result.growth = measure(round, measured);
    result.rounds = measured;
    return result;
}

} // namespace vexo::hox::qt::uitest
