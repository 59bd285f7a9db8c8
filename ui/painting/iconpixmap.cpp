// SPDX-License-Identifier: MIT
#include "ui/painting/iconpixmap_p.h"

#include "ui/files/imagefile_p.h"
#include "ui/foundation/pixels_p.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPixmapCache>
#include <QStyle>
#include <QStyleOption>

#include <cmath>

namespace vexo::hox::qt::ui {

namespace {

const Qt::ApplicationAttribute toolkits_own = Qt::AA_UseHighDpiPixmaps;

// Pixel for pixel: with the attribute the toolkit multiplies the size once more.
QPixmap plainPixmap(const QIcon &icon, const QSize &px)
{
    if (!QCoreApplication::testAttribute(toolkits_own))
        return icon.pixmap(px, QIcon::Normal, QIcon::Off);
    QCoreApplication::setAttribute(toolkits_own, false);
    const QPixmap pixmap = icon.pixmap(px, QIcon::Normal, QIcon::Off);
    QCoreApplication::setAttribute(toolkits_own, true);
    return pixmap;
}

bool isWhole(double ratio)
{
    return ratio == std::floor(ratio);
}

int sharpLength(int px, double ratio)
{
    const int whole = truncated(px * ratio + 1e-6); // a ratio such as 1.15 is not exact
    return qRound(whole / ratio) == px ? whole : truncated(px * ratio + 0.5);
}

// What an icon has in fewer pixels than asked for fills the same place; none is enlarged, though.
double shownRatio(const QSize &pixmap, const QSize &px, const QSize &asked, double ratio)
{
    if (pixmap.width() == asked.width() || pixmap.height() == asked.height())
        return ratio;
    const double across = double(pixmap.width()) / px.width();
    const double down = double(pixmap.height()) / px.height();
    return qMax(1.0, qMax(across, down));
}

} // namespace

double pixelRatio(const QPainter &painter)
{
    const bool is_plain = painter.deviceTransform().type() <= QTransform::TxTranslate;
    return is_plain ? 1.0 : painter.device()->devicePixelRatioF();
}

double sharpestRatio()
{
    return qGuiApp->devicePixelRatio();
}

QSize sharpSize(const QSize &px, double ratio)
{
    return QSize(sharpLength(px.width(), ratio), sharpLength(px.height(), ratio));
}

QPixmap iconPixmap(const QIcon &icon, const QSize &px, double ratio)
{
    if (ratio <= 1 || !ImageFile::isHoldable(px))
        return plainPixmap(icon, px);
    const QSize asked = sharpSize(px, ratio);
    if (!ImageFile::isHoldable(asked))
        return plainPixmap(icon, px);
    QPixmap pixmap = plainPixmap(icon, asked);
    pixmap.setDevicePixelRatio(shownRatio(pixmap.size(), px, asked, ratio));
    return pixmap;
}

QPixmap inverted(const QPixmap &pixmap)
{
    const QString key = QStringLiteral("hoxq_inverse_%1").arg(pixmap.cacheKey());
    QPixmap inverse;
    if (QPixmapCache::find(key, &inverse))
        return inverse;
    QImage image = pixmap.toImage();
    image.invertPixels(QImage::InvertRgb);
    inverse = QPixmap::fromImage(image);
    QPixmapCache::insert(key, inverse);
    return inverse;
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
