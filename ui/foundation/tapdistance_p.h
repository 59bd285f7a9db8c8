#pragma once
// SPDX-License-Identifier: MIT

#include "ui/foundation/pixels_p.h"

#include <QPoint>
#include <QSize>

#include <cstdlib>

namespace vexo::hox::qt::ui {

/// From here on a list takes a finger that is dragged across it, mm.
constexpr double DRAG_START_MM = 5;

/// How far a finger may wander in x and y for a tap.
class TapDistance
{
public:
    /// From now on all that are constructed take \a mm in place of their pixels; 0 or less: their
    /// pixels.
    static void setCommon(double mm) { common_mm = mm > 0 ? mm : 0; }

    explicit TapDistance(int px)
        : m_px(px)
    {
    }

    int px() const { return m_px; }
    /// Takes the place of a common distance.
    void setPx(int px)
    {
        m_px = px;
        m_mm = 0;
    }

    bool isExceededBy(const QPoint &way_px) const
    {
        const QSize limit = this->limit();
        return std::abs(way_px.x()) > limit.width() || std::abs(way_px.y()) > limit.height();
    }

private:
    // To each side, px.
    QSize limit() const
    {
        return m_mm > 0 ? pxSize(*ScalingInfo::inst(), QSizeF(m_mm, m_mm)) : QSize(m_px, m_px);
    }

    inline static double common_mm = 0;

    int m_px;
    double m_mm = common_mm; // in place of the pixels when above 0
};

} // namespace vexo::hox::qt::ui
