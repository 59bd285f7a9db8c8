// SPDX-License-Identifier: MIT
#include "ui/painting/iconpixmap_p.h"

#include <QGuiApplication>
#include <QStyle>
#include <QStyleOption>

#include <cmath>

namespace vexo::hox::qt::ui {

namespace {

bool isWhole(double ratio)
{
    return ratio == std::floor(ratio);
}

} // namespace

double pixelRatio(const QPainter &painter)
{
    const bool is_plain = painter.deviceTransform().type() <= QTransform::TxTranslate;
    return is_plain ? 1.0 : painter.device()->devicePixelRatioF();
}

QPixmap inverted(const QPixmap &pixmap)
{
    return RenderingCache::shared(RenderingCache::name("inverse ", pixmap.cacheKey()), [&] {
        QImage image = pixmap.toImage();
        image.invertPixels(QImage::InvertRgb);
        return QPixmap::fromImage(image);
    });
}

void drawIconPixmap(
    QPainter *painter, const QStyle &style, const QRect &area, int alignment, const QPixmap &pixmap)
{
    const QTransform &to_screen = painter->deviceTransform();
    if (to_screen.type() != QTransform::TxScale || isWhole(to_screen.m11())) {
        style.drawItemPixmap(painter, area, alignment, pixmap);
        return;
    }
    const QRect place = QStyle::alignedRect(QGuiApplication::layoutDirection(),
        Qt::Alignment(QFlag(alignment)), pixmap.size() / pixmap.devicePixelRatio(), area);
    const QPoint corner = to_screen.map(QPointF(place.topLeft())).toPoint();
    painter->save();
    if (!area.contains(place))
        painter->setClipRect(area, Qt::IntersectClip);
    painter->setRenderHint(
        QPainter::SmoothPixmapTransform, pixmap.devicePixelRatio() != to_screen.m11());
    painter->drawPixmap(to_screen.inverted().map(QPointF(corner)), pixmap);
    painter->restore();
}

void IconRendering::draw(
    QPainter *painter, const QStyle &style, const QRect &area, const QIcon &icon, const QSize &px)
{
    const double ratio = pixelRatio(*painter);
    QPixmap &pixmap = m_pixmaps.of({ icon.cacheKey(), px, ratio });
    if (pixmap.isNull())
        pixmap = iconPixmap(icon, px, ratio);
    if (!pixmap.isNull())
        drawIconPixmap(painter, style, area, Qt::AlignCenter, pixmap);
}

void stretchToScreen(QPainter *painter, const QRect &area)
{
    const QTransform to_screen = painter->deviceTransform();
    if (to_screen.type() != QTransform::TxScale || area.isEmpty())
        return;
    const QRectF on_screen = to_screen.mapRect(QRectF(area));
    const QRectF whole = on_screen.toRect();
    painter->translate(to_screen.inverted().map(whole.topLeft()));
    painter->scale(whole.width() / on_screen.width(), whole.height() / on_screen.height());
    painter->translate(-area.topLeft());
}

// As the toolkit does, but for the last line.
void IconLabel::paintEvent(QPaintEvent *event)
{
    const bool is_whole = sharpestRatio() == 1 || isWhole(devicePixelRatioF());
    if (is_whole || hasScaledContents() || pixmap(Qt::ReturnByValue).isNull()) {
        QLabel::paintEvent(event);
        return;
    }
    QPixmap image = pixmap(Qt::ReturnByValue);
    QStyleOption option;
    option.initFrom(this);
    if (!isEnabled())
        image = style()->generatedIconPixmap(QIcon::Disabled, image, &option);
    QPainter painter(this);
    drawFrame(&painter);
    const QRect area = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    const Qt::Alignment visual = QStyle::visualAlignment(layoutDirection(), alignment());
    drawIconPixmap(&painter, *style(), area, int(visual), image);
}

} // namespace vexo::hox::qt::ui
