// SPDX-License-Identifier: MIT
#include "ui/input/fieldframe_p.h"

#include "ui/foundation/pixels_p.h"

#include <QPainter>
#include <QPainterPath>

namespace vexo::hox::qt::ui {

void FieldFrame::setLineColor(const QColor &color)
{
    m_pen.setColor(color);
    m_pixmap = QPixmap();
}

void FieldFrame::setLine(const QPointF &px)
{
    m_line = px;
    m_rect.setTopLeft(px / 2);
    m_pen.setWidthF(px.y());
    m_pixmap = QPixmap();
}

void FieldFrame::setRadius(const QPointF &px)
{
    m_radius = px;
    m_pixmap = QPixmap();
}

void FieldFrame::setGround(const QColor &color)
{
    m_ground = color;
    m_pixmap = QPixmap();
}

void FieldFrame::draw(QPainter *painter, const QSize &size)
{
    if (!isKeepable(size)) {
        drawPath(painter, size);
        return;
    }
    const double pixel_ratio = painter->device()->devicePixelRatioF();
    if (m_pixmap.size() != size * pixel_ratio)
        render(size, pixel_ratio);
    painter->drawPixmap(0, 0, m_pixmap);
}

void FieldFrame::render(const QSize &size, double pixel_ratio)
{
    m_pixmap = QPixmap(size * pixel_ratio);
    m_pixmap.setDevicePixelRatio(pixel_ratio);
    m_pixmap.fill(Qt::transparent);
    QPainter painter(&m_pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    drawPath(&painter, size);
}

void FieldFrame::drawPath(QPainter *painter, const QSize &size)
{
    m_rect.setSize(QSizeF(size.width() - m_line.x(), size.height() - m_line.y()));
    QPainterPath path;
    path.addRoundedRect(m_rect, m_radius.x(), m_radius.y(), Qt::AbsoluteSize);
    painter->setPen(m_pen);
    painter->setBrush(m_ground);
    painter->drawPath(path);
}

} // namespace vexo::hox::qt::ui
