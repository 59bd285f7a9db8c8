#pragma once
// SPDX-License-Identifier: MIT

#include "ui/foundation/pixels_p.h"
#include "ui/touch/tapdistance.h"

#include <QPoint>
#include <QSize>

#include <cstdlib>

namespace vexo::hox::qt::ui {

/// From here on a list takes a finger that is dragged across it, mm.
constexpr double DRAG_START_MM = 5;

/// Whether \a way_px leads farther than \a limit_px, to either side.
inline bool leadsBeyond(const QPoint &way_px, const QSize &limit_px)
{
    return std::abs(way_px.x()) > limit_px.width() || std::abs(way_px.y()) > limit_px.height();
}

/// Whether a list would take a finger that has gone \a way_px.
inline bool leadsBeyondDragStart(const QPoint &way_px)
{
    return leadsBeyond(way_px, pxSize(*ScalingInfo::inst(), QSizeF(DRAG_START_MM, DRAG_START_MM)));
}

/// How far a finger may wander in x and y for a tap on one widget.
class TapLimit
{
public:
    /// \a px, or TapDistance::mm() in their place.
    explicit TapLimit(int px)
        : m_px(px)
    {
    }

    int px() const { return m_px; }
    void setPx(int px)
    {
        m_px = px;
        m_mm = 0;
    }

    bool isExceededBy(const QPoint &way_px) const { return leadsBeyond(way_px, limit()); }

private:
    // To each side, px.
    QSize limit() const
    {
        return m_mm > 0 ? pxSize(*ScalingInfo::inst(), QSizeF(m_mm, m_mm)) : QSize(m_px, m_px);
    }

    int m_px;
    double m_mm = TapDistance::mm(); // in place of the pixels when above 0
};

} // namespace vexo::hox::qt::ui
