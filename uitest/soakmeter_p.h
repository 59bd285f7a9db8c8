#pragma once
// SPDX-License-Identifier: MIT

#include <QPointF>
#include <QVector>

namespace vexo::hox::qt::uitest {

/// What the process holds now.
struct Holdings
{
    double heap_bytes;
    double objects; // since the first ObjectCounter that lives
    double handles;

    static Holdings now();
};

/// Of pixmaps, and of their names, which the toolkit keeps for some time longer.
void emptyPixmapCache();

/// Counts the QObjects of the process that are made and deleted while it lives.
class ObjectCounter
{
public:
    ObjectCounter();
    ~ObjectCounter();
    ObjectCounter(const ObjectCounter &) = delete;
    ObjectCounter &operator=(const ObjectCounter &) = delete;

    static int count();
};

/// The median of the slopes from each of \a points to the next, so one step that is unlike the
/// others does not count; 0 if there is none.
double medianSlope(const QVector<QPointF> &points);

} // namespace vexo::hox::qt::uitest
