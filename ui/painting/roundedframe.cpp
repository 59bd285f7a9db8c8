// SPDX-License-Identifier: MIT
#include "ui/painting/roundedframe_p.h"

#include <QPainterPath>

namespace vexo::hox::qt::ui {

void drawRoundedRect(QPainter *painter, const QRectF &rect, const QPointF &radius)
{
    QPainterPath path;
    path.addRoundedRect(rect, radius.x(), radius.y(), Qt::AbsoluteSize);
    painter->drawPath(path);
}

QRectF RoundedFrame::outline(const QSizeF &size) const
{
    return QRectF(m_margin, size - 2 * QSizeF(m_margin.x(), m_margin.y()));
}

QRectF RoundedFrame::evenGround(const QSizeF &size) const
{
    const double line = m_pen.widthF() + 1;
    const QRectF even = outline(size).adjusted(m_radius.x(), line, -m_radius.x(), -line);
    return even.isValid() ? even : QRectF(); // one that is inside out would be filled
}

void RoundedFrame::draw(QPainter *painter, const QSize &size, const QRect &dirty)
{
    if (outline(size).isEmpty())
        return;
    const double end = m_margin.x() + m_radius.x() + m_pen.widthF();
    m_ends.of({ m_ground, m_margin, m_radius, m_pen })
        .draw(
            painter, size, end, dirty,
            [this](QPainter *to, const QSizeF &px) { drawWhole(to, px); },
            [this] {
                return RenderingCache::name("RoundedFrame ", m_pen, m_ground, m_margin, m_radius);
            });
}

void RoundedFrame::drawWhole(QPainter *painter, const QSizeF &size) const
{
    painter->setPen(m_pen);
    painter->setBrush(m_ground);
    drawRoundedRect(painter, outline(size), m_radius);
}

} // namespace vexo::hox::qt::ui
