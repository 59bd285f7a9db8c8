// SPDX-License-Identifier: MIT
#include "ui/input/fieldframe_p.h"

#include "ui/foundation/pixels_p.h"

#include <QDataStream>
#include <QIODevice>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPixmapCache>
#include <QtMath>

namespace vexo::hox::qt::ui {

namespace {

// Without a loss: the colour goes through no 8-bit number that is not multiplied by its alpha.
QColor unmultiplied(QRgb premultiplied)
{
    const QRgba64 wide = QRgba64::fromArgb32(premultiplied);
    return QColor::fromRgba64(wide.unpremultiplied());
}

} // namespace

void FieldFrame::setLineColor(const QColor &color)
{
    m_pen.setColor(color);
    m_ends = QPixmap();
}

void FieldFrame::setLine(const QPointF &px)
{
    m_line = px;
    m_pen.setWidthF(px.y());
    m_ends = QPixmap();
}

void FieldFrame::setRadius(const QPointF &px)
{
    m_radius = px;
    m_ends = QPixmap();
}

void FieldFrame::setGround(const QColor &color)
{
    m_ground = color;
    m_ends = QPixmap();
}

// In device pixels: at a ratio such as 1.25 a pixmap that is placed in px would be blurred.
void FieldFrame::draw(QPainter *painter, const QSize &size, const QRect &dirty)
{
    const QTransform to_device = painter->deviceTransform();
    const QRect place = to_device.mapRect(QRectF(QPointF(), size)).toAlignedRect();
    const double scale = to_device.m11();
    const int end = qCeil((m_radius.x() + m_line.x() + m_line.y()) * scale) + 2;
    const int spare = qMax(0, place.width() - 2 * end - 1);
    const QSize ends(place.width() - spare, place.height());
    if (to_device.type() > QTransform::TxScale || scale <= 0 || !isKeepable(ends)) {
        drawPath(painter, size);
        return;
    }
    const QTransform to_ends = to_device * QTransform::fromTranslate(-place.x(), -place.y());
    keepEnds(QSizeF(size.width() - spare / scale, size.height()), to_ends, ends);
    const QTransform world = painter->worldTransform();
    painter->setWorldTransform(to_device.inverted(), true);
    painter->setRenderHint(QPainter::Antialiasing, false);
    drawPixels(painter, place, end, to_device.mapRect(QRectF(dirty)).toAlignedRect());
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setWorldTransform(world);
}

// Fields that look alike share what the pixmap cache still has.
void FieldFrame::keepEnds(const QSizeF &size, const QTransform &to_ends, const QSize &px)
{
    if (!m_ends.isNull() && m_ends.size() == px && m_size == size && m_to_ends == to_ends)
        return;
    m_size = size;
    m_to_ends = to_ends;
    const QString key = keyOfEnds();
    if (QPixmapCache::find(key, &m_ends) && m_ends.size() == px)
        return;
    m_ends = QPixmap(px);
    m_ends.fill(Qt::transparent);
    QPainter painter(&m_ends);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setTransform(to_ends);
    drawPath(&painter, size);
    painter.end();
    QPixmapCache::insert(key, m_ends);
}

QString FieldFrame::keyOfEnds() const
{
    QByteArray look;
    QDataStream stream(&look, QIODevice::WriteOnly);
    stream << m_pen << m_ground << m_line << m_radius << m_size << m_to_ends;
    return QLatin1String("FieldFrame ") + QString::fromLatin1(look.toBase64());
}

void FieldFrame::drawPixels(
    QPainter *painter, const QRect &place, int end, const QRect &dirty) const
{
    const int missing = place.width() - m_ends.width();
    if (missing == 0) {
        painter->drawPixmap(place.topLeft(), m_ends);
        return;
    }
    const QRect even = place.adjusted(end, 0, missing + end + 1 - place.width(), 0);
    if (dirty.left() < even.left())
        painter->drawPixmap(place.topLeft(), m_ends, QRect(0, 0, end, place.height()));
    if (dirty.right() > even.right())
        painter->drawPixmap(
            even.topRight() + QPoint(1, 0), m_ends, m_ends.rect().adjusted(end + 1, 0, 0, 0));
    fillRows(painter, even & dirty, place.y(), end);
}

// Each row as it is in the even column of the ends.
void FieldFrame::fillRows(QPainter *painter, const QRect &part, int top, int column) const
{
    const QImage ends = m_ends.toImage();
    const auto *const rows = reinterpret_cast<const QRgb *>(ends.constBits()) + column;
    const int stride = ends.bytesPerLine() / int(sizeof(QRgb));
    const int bottom = part.y() + part.height();
    for (int y = part.y(), next = y; y < bottom; y = next) {
        const QRgb color = rows[(y - top) * stride];
        while (next < bottom && rows[(next - top) * stride] == color)
            ++next;
        painter->fillRect(part.x(), y, part.width(), next - y, unmultiplied(color));
    }
}

void FieldFrame::drawPath(QPainter *painter, const QSizeF &size) const
{
    QPainterPath path;
    path.addRoundedRect(QRectF(m_line / 2, size - QSizeF(m_line.x(), m_line.y())), m_radius.x(),
        m_radius.y(), Qt::AbsoluteSize);
    painter->setPen(m_pen);
    painter->setBrush(m_ground);
    painter->drawPath(path);
}

} // namespace vexo::hox::qt::ui
