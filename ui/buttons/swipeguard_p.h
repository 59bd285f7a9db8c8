#pragma once

#include <QPoint>
#include <QWidget>

#include <cstdlib>

namespace vexo::hox::qt::ui {

/// Tells a tap from a swipe: a press that has wandered further than the threshold in x or y is a
/// swipe until its release, even if the finger comes back.
class SwipeGuard
{
public:
    explicit SwipeGuard(int threshold_px)
        : m_threshold(threshold_px)
    {
    }

    int threshold() const { return m_threshold; }
    void setThreshold(int px) { m_threshold = px; }
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
        if (std::abs(way.x()) > m_threshold || std::abs(way.y()) > m_threshold)
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
    int m_threshold; // px
    bool m_is_pressed = false;
    bool m_is_swipe = false;
    QPoint m_position;
};

} // namespace vexo::hox::qt::ui
