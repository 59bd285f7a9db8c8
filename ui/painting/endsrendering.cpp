// SPDX-License-Identifier: MIT
#include "ui/painting/endsrendering_p.h"

#include "ui/foundation/pixels_p.h"
#include "ui/painting/renderingcache_p.h"

#include <QImage>
#include <QtMath>

namespace vexo::hox::qt::ui {

namespace {

// Without a loss, since 16 bits are left to each part of the colour.
QColor unmultiplied(QRgb premultiplied)
{
    return QColor::fromRgba64(QRgba64::fromArgb32(premultiplied).unpremultiplied());
}

} // namespace

// In device pixels: at a ratio such as 1.25 a pixmap that is placed in px would be blurred.
void EndsRendering::draw(QPainter *painter, const QSize &size, double end, const QRect &dirty,
    const DrawShape &draw_shape, const std::function<QString()> &look)
{
    const QTransform to_device = painter->deviceTransform();
    const QRect place = to_device.mapRect(QRectF(QPointF(), size)).toAlignedRect();
    const double scale = to_device.m11();
    const int end_px = qCeil(finitePx(end * scale)) + 2;
    const int spare = qMax(0, place.width() - 2 * end_px - 1);
    const QSize ends(place.width() - spare, place.height());
    if (to_device.type() > QTransform::TxScale || scale <= 0 || !isKeepable(ends)) {
        draw_shape(painter, size);
        return;
    }
    const QTransform to_ends = to_device * QTransform::fromTranslate(-place.x(), -place.y());
    const QSizeF shorter(size.width() - spare / scale, size.height());
    if (m_ends.size() != ends || m_size != shorter || m_to_ends != to_ends) {
        m_size = shorter;
        m_to_ends = to_ends;
        const QString name = look() + RenderingCache::name(" ", ends, m_size, m_to_ends);
        m_ends = RenderingCache::shared(name, [&] {
            return rendered(ends, 1, [&](QPainter *to) {
                to->setTransform(m_to_ends);
                draw_shape(to, m_size);
            });
        });
    }
    const QTransform world = painter->worldTransform();
    painter->setWorldTransform(to_device.inverted(), true);
    painter->setRenderHint(QPainter::Antialiasing, false);
    drawPixels(painter, place, end_px, to_device.mapRect(QRectF(dirty)).toAlignedRect());
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setWorldTransform(world);
}

void EndsRendering::drawPixels(
    QPainter *painter, const QRect &place, int end, const QRect &dirty) const
{
    const int spare = place.width() - m_ends.width();
    if (spare == 0) {
        painter->drawPixmap(place.topLeft(), m_ends);
        return;
    }
    const QRect even(place.x() + end, place.y(), spare + 1, place.height());
    if (dirty.left() < even.left())
        painter->drawPixmap(place.topLeft(), m_ends, QRect(0, 0, end, place.height()));
    if (dirty.right() > even.right())
        painter->drawPixmap(
            even.topRight() + QPoint(1, 0), m_ends, m_ends.rect().adjusted(end + 1, 0, 0, 0));
    fillRows(painter, even & dirty, place.y(), end);
}

// Each row as it is in the even column of the ends.
void EndsRendering::fillRows(QPainter *painter, const QRect &part, int top, int column) const
{
    const QImage ends = m_ends.toImage();
    const auto *const rows = reinterpret_cast<const QRgb *>(ends.constBits()) + column;
    const int stride = ends.bytesPerLine() / int(sizeof(QRgb));
    const int bottom = part.y() + part.height();
    for (int y = part.y(), next = y; y < bottom; y = next) {
        const QRgb color = rows[(y - top) * stride];
        while (next < bottom && rows[(next - top) * stride] == color)
            ++next;
        if (qAlpha(color) > 0)
            painter->fillRect(part.x(), y, part.width(), next - y, unmultiplied(color));
    }
}

} // namespace vexo::hox::qt::ui
