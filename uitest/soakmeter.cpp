// SPDX-License-Identifier: MIT
#include "uitest/soakmeter_p.h"

#define Q_TEST_QPIXMAPCACHE // for flushDetachedPixmaps()
#include <QDir>
#include <QPixmapCache>
#include <QVarLengthArray>

#include <private/qhooks_p.h>

#include <algorithm>
#include <atomic>
#include <malloc.h>

// Has a body where the program is built with the address sanitizer, whose heap is not malloc's.
extern "C" __attribute__((weak)) size_t __sanitizer_get_current_allocated_bytes();

namespace vexo::hox::qt::uitest {

namespace {

std::atomic<int> objects{ 0 };
int counters = 0;
quintptr former_add = 0; // of a debugger, which goes on
quintptr former_remove = 0;

void add(QObject *object)
{
    ++objects;
    if (former_add)
        reinterpret_cast<QHooks::AddQObjectCallback>(former_add)(object);
}

void remove(QObject *object)
{
    --objects;
    if (former_remove)
        reinterpret_cast<QHooks::RemoveQObjectCallback>(former_remove)(object);
}

double heapBytes()
{
    if (__sanitizer_get_current_allocated_bytes)
        return double(__sanitizer_get_current_allocated_bytes());
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}

} // namespace

Holdings Holdings::now()
{
    const double handles
        = QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::Files | QDir::System).size();
    return { heapBytes(), double(ObjectCounter::count()), handles };
}

void emptyPixmapCache()
{
    QPixmapCache::clear();
    QPixmapCache::flushDetachedPixmaps();
}

ObjectCounter::ObjectCounter()
{
    if (counters++ > 0)
        return; // in a round of another soak, which goes on counting
    objects = 0;
    former_add = qtHookData[QHooks::AddQObject];
    former_remove = qtHookData[QHooks::RemoveQObject];
    qtHookData[QHooks::AddQObject] = reinterpret_cast<quintptr>(&add);
    qtHookData[QHooks::RemoveQObject] = reinterpret_cast<quintptr>(&remove);
}

ObjectCounter::~ObjectCounter()
{
    if (--counters > 0)
        return;
    qtHookData[QHooks::AddQObject] = former_add;
    qtHookData[QHooks::RemoveQObject] = former_remove;
}

int ObjectCounter::count()
{
    return objects;
}

double medianSlope(const QVector<QPointF> &points)
{
    QVector<double> slopes;
    for (int i = 1; i < points.size(); ++i) {
        const QPointF way = points.at(i) - points.at(i - 1);
        if (way.x() != 0)
            slopes.append(way.y() / way.x());
    }
    if (slopes.isEmpty())
        return 0;
    const auto middle = slopes.begin() + slopes.size() / 2;
    std::nth_element(slopes.begin(), middle, slopes.end());
    return *middle;
}

} // namespace vexo::hox::qt::uitest
