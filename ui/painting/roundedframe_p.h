#pragma once
// SPDX-License-Identifier: MIT

#include "ui/painting/endsrendering_p.h"
#include "ui/painting/renderingpair_p.h"

#include <QPen>
#include <QPointF>

#include <tuple>

namespace vexo::hox::qt::ui {

/// QPainter::drawRoundedRect(), but with the arcs of a path, which are rounder. \a radius in px.
void drawRoundedRect(QPainter *painter, const QRectF &rect, const QPointF &radius);

/// The rounded frame of a field or button, with its ground: its ends are rendered once for each of
/// two looks. All that changes them is set here or belongs to the painter, so it is never invalid.
class RoundedFrame
{
public:
    void setLineColor(const QColor &color) { m_pen.setColor(color); }
    void setLineWidth(double px) { m_pen.setWidthF(px); }
    /// From the edges of the widget to the middle of the line.
    void setMargin(const QPointF &px) { m_margin = px; }
    void setRadius(const QPointF &px) { m_radius = px; }
    void setGround(const QColor &color) { m_ground = color; }
    /// Of the line; also for what else is outlined as the frame.
    const QPen &pen() const { return m_pen; }

    /// The middle of the line of a widget of \a size, px; empty in one that is nothing but margin.
    QRectF outline(const QSizeF &size) const;
    /// Where that widget is nothing but ground: between round ends and lines, px; may be empty.
    QRectF evenGround(const QSizeF &size) const;

    /// Draws what is \a dirty, px, of the frame of a widget of \a size px; nothing if all of that
    /// is margin. \a painter must antialias.
    void draw(QPainter *painter, const QSize &size, const QRect &dirty);

private:
    using Look = std::tuple<QColor, QPointF, QPointF, QPen>;

    void drawWhole(QPainter *painter, const QSizeF &size) const;

    QPen m_pen;
    QPointF m_margin; // px
    QPointF m_radius; // px
    QColor m_ground;
    LookPair<Look, EndsRendering> m_ends;
};

} // namespace vexo::hox::qt::ui
