#pragma once
// SPDX-License-Identifier: MIT

#include <QColor>
#include <QPen>
#include <QPixmap>
#include <QPointF>
#include <QSizeF>
#include <QTransform>

class QPainter;

namespace vexo::hox::qt::ui {

/// The rounded frame of a field, with its ground. Its ends are rendered once for look, height and
/// place among the device's pixels; between them each row is one colour and is filled, so that a
/// long field keeps no more than a short one.
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

    /// Draws what is \a dirty, px, of the frame of a field of \a size px, as sharp as the device
    /// is. \a painter must antialias.
    void draw(QPainter *painter, const QSize &size, const QRect &dirty);

private:
    void drawPath(QPainter *painter, const QSizeF &size) const;
    void keepEnds(const QSizeF &size, const QTransform &to_ends, const QSize &px);
    QString keyOfEnds() const;
    void drawPixels(QPainter *painter, const QRect &place, int end, const QRect &dirty) const;
    void fillRows(QPainter *painter, const QRect &part, int top, int column) const;

    QPen m_pen;
    QPointF m_line; // px
    QPointF m_radius; // px
    QColor m_ground;
    QPixmap m_ends; // of a field with one even column between them; null after a change of the look
    QSizeF m_size; // of that field, px
    QTransform m_to_ends; // from its px to device pixels
};

} // namespace vexo::hox::qt::ui
