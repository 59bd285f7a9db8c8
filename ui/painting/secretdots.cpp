// SPDX-License-Identifier: MIT
#include "ui/painting/secretdots_p.h"

#include "ui/foundation/pixels_p.h"
#include "ui/painting/iconpixmap_p.h"

#include <cmath>

namespace vexo::hox::qt::ui {

namespace {

const qint64 most_kept = 1 << 16; // px; far larger than a dot

} // namespace

QVector<QRectF> SecretDots::rects(const ScalingInfo &scaling, const QSize &field_px, double left,
    int dx, int count, bool centered)
{
    const QSize dot = pxSize(scaling, QSizeF(1.5, 1.5));
    const int pitch = pxX(scaling, 2.5);
    double x = left + dx;
    if (centered) {
        const float half_row = scaling.mm2px_X(float((count - 1) * 1.25));
        const int middle = dx + field_px.width() / 2 - dot.width() / 2;
        x = middle - double(half_row);
    }
    x = qMax(x, left);
    const int y = field_px.height() / 2 - dot.height() / 2;
    QVector<QRectF> dots;
    for (; dots.size() < count && x < field_px.width() - left; x += pitch)
        dots += QRectF(QPointF(x, y), dot);
    return dots;
}

void SecretDots::draw(
    QPainter *painter, const QVector<QRectF> &dots, const QPen &outline, const QColor &ink)
{
    if (dots.isEmpty())
        return;
    painter->setPen(outline);
    painter->setBrush(ink);
    const double seam = std::ceil(outline.widthF()) + 1;
    // Whole pixels lie between the dots, so all are antialiased alike.
    const QPointF corner(std::floor(dots.first().x()) - seam, dots.first().y() - seam);
    const QRectF dot = dots.first().translated(-corner);
    const QSize size(truncated(dot.right() + seam) + 1, truncated(dot.bottom() + seam));
    if (pixelRatio(*painter) != 1 || qint64(size.width()) * size.height() > most_kept) {
        QPen bounded = outline; // each might cover the whole field otherwise
        bounded.setWidthF(qMin(outline.widthF(), std::sqrt(double(most_kept))));
        painter->setPen(bounded);
        for (const QRectF &each : dots)
            painter->drawEllipse(each);
        return;
    }
    QPixmap &pixmap = m_pixmaps.of({ dot, outline, ink });
    if (pixmap.isNull()) {
        pixmap = rendered(size, 1, [&](QPainter *to) {
            to->setPen(outline);
            to->setBrush(ink);
            to->drawEllipse(dot);
        });
    }
    for (const QRectF &each : dots)
        painter->drawPixmap((each.topLeft() - dot.topLeft()).toPoint(), pixmap);
}

} // namespace vexo::hox::qt::ui
