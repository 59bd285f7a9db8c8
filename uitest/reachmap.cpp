// SPDX-License-Identifier: MIT
#include "uitest/reachmap_p.h"

#include "uitest/touchtarget_p.h"

#include <algorithm>

namespace vexo::hox::qt::uitest {

namespace {

QRegion shapeOf(const QWidget *widget)
{
    const bool is_masked = !widget->mask().isEmpty() && !widget->testAttribute(Qt::WA_MouseNoMask);
    return is_masked ? widget->mask() & widget->rect() : QRegion(widget->rect());
}

bool takesPart(const QObject *object)
{
    const auto *widget = qobject_cast<const QWidget *>(object);
    return widget && !widget->isWindow() && widget->isVisible()
        && !widget->testAttribute(Qt::WA_TransparentForMouseEvents);
}

bool isBetter(const QRect &one, const QRect &other)
{
    const QSizeF mm = mmOf(one.size());
    const QSizeF other_mm = mmOf(other.size());
    const double side = qMin(mm.width(), mm.height());
    const double other_side = qMin(other_mm.width(), other_mm.height());
    return side > other_side
        || (side == other_side && mm.width() * mm.height() > other_mm.width() * other_mm.height());
}

QVector<int> rowEdges(const QRegion &region)
{
    QVector<int> edges;
    for (const QRect &rect : region)
        edges << rect.top() << rect.bottom() + 1;
    std::sort(edges.begin(), edges.end());
    edges.erase(std::unique(edges.begin(), edges.end()), edges.end());
    return edges;
}

// The parts of the rows from \a top to \a bottom that are in the region all the way down.
QRegion through(const QRegion &region, int top, int bottom)
{
    const QRect bounds = region.boundingRect();
    const QRegion gaps = QRegion(QRect(bounds.left(), top, bounds.width(), bottom - top)) - region;
    QRegion columns(bounds.left(), top, bounds.width(), bottom - top);
    for (const QRect &gap : gaps)
        columns -= QRect(gap.left(), top, gap.width(), bottom - top);
    return columns;
}

} // namespace

ReachMap::ReachMap(const QWidget *window, const QSet<const QWidget *> &targets)
    : m_window(window)
    , m_targets(targets)
{
    const QWidget *top = window->window();
    const QRect px(window->mapFromGlobal(top->mapToGlobal(QPoint(0, 0))), top->size());
    claim(top, QRegion(px), nullptr, &m_reach);
    const QList<QWidget *> inside = window->findChildren<QWidget *>();
    for (const QWidget *widget : inside) {
        if (isScrolled(widget) && m_shown.contains(widget))
            addSheet(widget);
    }
}

QRegion ReachMap::reach(const QWidget *target) const
{
    const QRegion mask = target->mask();
    const QRegion corners = QRegion(mask.boundingRect()) - mask;
    return m_reach.value(target)
        + corners.translated(placeIn(m_window, target, target->rect()).topLeft());
}

QSize ReachMap::limit(const QWidget *target) const
{
    QSize limit(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    for (const QWidget *sheet = this->sheet(target); sheet; sheet = this->sheet(sheet))
        limit = limit.boundedTo(widestRect(m_shown.value(sheet)).size());
    return limit;
}

const QWidget *ReachMap::sheet(const QWidget *target) const
{
    const QWidget *above = target == m_window ? nullptr : target->parentWidget();
    while (above && !m_shown.contains(above))
        above = above == m_window ? nullptr : above->parentWidget();
    return above;
}

void ReachMap::claim(const QWidget *widget, QRegion clip, const QWidget *owner, Reach *reach)
{
    owner = ownerOf(widget, owner);
    if (isScrolled(widget)) {
        m_shown.insert(widget, clip);
        m_owners.insert(widget, owner);
    }
    claimChildren(widget, &clip, owner, reach);
    if (owner && !clip.isEmpty())
        (*reach)[owner] += clip;
}

// From the top one downwards; each takes its place away from those below.
void ReachMap::claimChildren(
    const QWidget *widget, QRegion *clip, const QWidget *owner, Reach *reach)
{
    const QObjectList &children = widget->children();
    for (auto it = children.crbegin(); it != children.crend() && !clip->isEmpty(); ++it) {
        if (!takesPart(*it))
            continue;
        const auto *child = static_cast<const QWidget *>(*it);
        const QPoint corner = placeIn(m_window, child, child->rect()).topLeft();
        const QRegion part = *clip & shapeOf(child).translated(corner);
        if (part.isEmpty())
            continue;
        claim(child, part, owner, reach);
        *clip -= part;
    }
}

const QWidget *ReachMap::ownerOf(const QWidget *widget, const QWidget *above) const
{
    if (above && includesItsChildren(above) && above->isAncestorOf(widget))
        return above;
    if (m_targets.contains(widget))
        return widget;
    return widget->testAttribute(Qt::WA_NoMousePropagation) ? nullptr : above;
}

// As if all of it were in sight. The outer sheets come first, so an inner one has the last word.
void ReachMap::addSheet(const QWidget *viewport)
{
    const QRect extent = viewport->childrenRect();
    QRegion clip(placeIn(m_window, viewport, extent));
    Reach reach;
    claimChildren(viewport, &clip, m_owners.value(viewport), &reach);
    for (auto it = reach.cbegin(); it != reach.cend(); ++it) {
        if (viewport->isAncestorOf(it.key()))
            m_reach[it.key()] = it.value();
    }
}

QRect widestRect(const QRegion &region)
{
    const int most_rows = 64; // beyond, it is a picture of something
    const QVector<int> rows = rowEdges(region);
    if (region.rectCount() <= 1 || rows.size() > most_rows)
        return region.boundingRect();
    QRect widest;
    for (int top = 0; top < rows.size(); ++top) {
        for (int bottom = top + 1; bottom < rows.size(); ++bottom) {
            const QRegion columns = through(region, rows.at(top), rows.at(bottom));
            for (const QRect &rect : columns) {
                if (isBetter(rect, widest))
                    widest = rect;
            }
        }
    }
    return widest;
}

} // namespace vexo::hox::qt::uitest
