// SPDX-License-Identifier: MIT
#include "ui/painting/roundedframe_p.h"

#include <QDataStream>
#include <QIODevice>
#include <QPainter>
#include <QPainterPath>

namespace vexo::hox::qt::ui {

void RoundedFrame::setLineColor(const QColor &color)
{
    m_pen.setColor(color);
    m_ends.forget();
}

void RoundedFrame::setLine(const QPointF &px)
{
    m_line = px;
    m_pen.setWidthF(px.y());
    m_ends.forget();
}

void RoundedFrame::setRadius(const QPointF &px)
{
    m_radius = px;
    m_ends.forget();
}

void RoundedFrame::setGround(const QColor &color)
{
    m_ground = color;
    m_ends.forget();
}

void RoundedFrame::draw(QPainter *painter, const QSize &size, const QRect &dirty)
{
    m_ends.draw(
        painter, size, m_radius.x() + m_line.x() + m_line.y(), dirty,
        [this](QPainter *to, const QSizeF &px) { drawPath(to, px); }, [this] { return look(); });
}

void RoundedFrame::drawPath(QPainter *painter, const QSizeF &size) const
{
    QPainterPath path;
    path.addRoundedRect(QRectF(m_line / 2, size - QSizeF(m_line.x(), m_line.y())), m_radius.x(),
        m_radius.y(), Qt::AbsoluteSize);
    painter->setPen(m_pen);
    painter->setBrush(m_ground);
    painter->drawPath(path);
}

QString RoundedFrame::look() const
{
    QByteArray look;
    QDataStream stream(&look, QIODevice::WriteOnly);
    stream << m_pen << m_ground << m_line << m_radius;
    return QLatin1String("RoundedFrame ") + QString::fromLatin1(look.toBase64());
}

} // namespace vexo::hox::qt::ui
