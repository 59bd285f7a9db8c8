#pragma once
// SPDX-License-Identifier: MIT

#include <QColor>
#include <QPen>
#include <QPixmap>
#include <QPointF>
#include <QRectF>

class QPainter;

namespace vexo::hox::qt::ui {

/// The rounded frame of a field, with its ground: rendered once for its look and size.
class FieldFrame
{
public:
    /// Outlines in \a color; also the pen of what else is outlined as the frame.
    void setLineColor(const QColor &color);
    /// The frame lies half a line inside the field; its outline is as wide as the line is high, px.
    void setLine(const QPointF &px);
    void setRadius(const QPointF &px);
    void setGround(const QColor &color);
    const QPen &pen() const { return m_pen; }

    /// Draws the frame of a field of \a size px.
    void draw(QPainter *painter, const QSize &size);

private:
    void render(const QSize &size, double pixel_ratio);
    void drawPath(QPainter *painter, const QSize &size);

    QRectF m_rect; // px
    QPen m_pen;
    QPointF m_line; // px
    QPointF m_radius; // px
    QColor m_ground;
    QPixmap m_pixmap; // as drawn last; null after a change of the look
};

} // namespace vexo::hox::qt::ui
