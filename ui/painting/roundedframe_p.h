#pragma once
// SPDX-License-Identifier: MIT

#include "ui/painting/endsrendering_p.h"

#include <QColor>
#include <QPen>
#include <QPointF>

class QPainter;

namespace vexo::hox::qt::ui {

/// The rounded frame of a field, with its ground: its ends are rendered once for their look.
class RoundedFrame
{
public:
    /// Outlines in \a color; also the pen of what else is outlined as the frame.
    void setLineColor(const QColor &color);
    /// The frame lies half a line inside the field; its outline is as wide as the line is high, px.
    void setLine(const QPointF &px);
    void setRadius(const QPointF &px);
    void setGround(const QColor &color);
    const QPen &pen() const { return m_pen; }

    /// Draws what is \a dirty, px, of the frame of a field of \a size px. \a painter must
    /// antialias.
    void draw(QPainter *painter, const QSize &size, const QRect &dirty);

private:
    void drawPath(QPainter *painter, const QSizeF &size) const;
    QString look() const;

    QPen m_pen;
    QPointF m_line; // px
    QPointF m_radius; // px
    QColor m_ground;
    EndsRendering m_ends;
};

} // namespace vexo::hox::qt::ui
