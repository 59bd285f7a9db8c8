#pragma once

#include "ui/foundation/pixels_p.h"

#include <QPoint>
#include <QWidget>

#include <cstdlib>

namespace vexo::hox::qt::ui {

/// Tells a tap from a swipe: a press that has wandered further than the threshold in x or y is a
/// swipe until its release, even if the finger comes back.
class SwipeGuard
{
public:
    /// From now on all that are constructed take \a mm in place of their pixels; 0 or less: their
    /// pixels.
    static void setCommonDistance(double mm) { common_mm = mm > 0 ? mm : 0; }

    explicit SwipeGuard(int threshold_px)
        : m_threshold(threshold_px)
    {
    }

    int threshold() const { return m_threshold; }
    /// Takes the place of a common distance.
    void setThreshold(int px)
    {
        m_threshold = px;
        m_mm = 0;
    }
    bool isPressed() const { return m_is_pressed; }

    /// Positions are in px, in any one coordinate system.
    void press(const QPoint &position)
    {
        m_is_pressed = true;
        m_position = position;
    }

    void move(const QPoint &position)
    {
        if (!m_is_pressed)
            return;
        const QPoint way = position - m_position;
        const QSize limit = distance();
        if (std::abs(way.x()) > limit.width() || std::abs(way.y()) > limit.height())
            m_is_swipe = true;
    }

    /// Ends the press; true for a tap. A release far off every screen is how the toolkit's scroller
    /// takes a press back: that is a swipe, even when its moves never came.
    bool release(const QPoint &global_position = QPoint())
    {
        const bool is_taken_back = global_position.x() <= -QWIDGETSIZE_MAX / 2;
        const bool is_tap = !m_is_swipe && !is_taken_back;
        m_is_pressed = false;
        m_is_swipe = false;
        m_position = QPoint();
        return is_tap;
    }

private:
    // To each side, px.
    QSize distance() const
    {
        return m_mm > 0 ? pxSize(*ScalingInfo::inst(), QSizeF(m_mm, m_mm))
                        : QSize(m_threshold, m_threshold);
    }

    inline static double common_mm = 0;

    int m_threshold; // px
    double m_mm = common_mm; // in place of the pixels when above 0
    bool m_is_pressed = false;
    bool m_is_swipe = false;
    QPoint m_position;
};

} // namespace vexo::hox::qt::ui
