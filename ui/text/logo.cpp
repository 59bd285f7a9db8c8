// SPDX-License-Identifier: MIT
#include "ui/text/logo_p.h"

#include "ui/files/imagefile_p.h"
#include "ui/foundation/scalinginfo.h"

#include <QPainter>

namespace vexo::hox::qt::ui {

QImage logoImage(int width, int height, QImage::Format format, double ratio)
{
    const QSize px(width, height);
    if (!ImageFile::isHoldable(px))
        return QImage();
    const double held = ImageFile::isHoldable(px * ratio) ? ratio : 1;
    QImage image(px * held, format);
    image.setDevicePixelRatio(held);
    return image;
}

QRectF logoRect(const QSize &natural, double mm, const QSizeF &room)
{
    if (natural.isEmpty())
        return QRectF();
    const ScalingInfo &scaling = *ScalingInfo::inst();
    const double height_mm = mm * natural.height() / natural.width();
    const QSizeF size(
        mm * double(scaling.m_px_per_mm_x), height_mm * double(scaling.m_px_per_mm_y));
    if (size.isEmpty() || !qIsFinite(size.width()) || !qIsFinite(size.height()))
        return QRectF();
    return QRectF(
        QPointF((room.width() - size.width()) / 2, (room.height() - size.height()) / 2), size);
}

void drawLogo(QImage *image, ImageFile *file, const QRectF &rect)
{
    QPainter painter;
    if (image->isNull() || !painter.begin(image))
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBackground(Qt::white);
    painter.eraseRect(image->rect());
    if (!rect.isEmpty())
        file->draw(&painter, rect);
}

} // namespace vexo::hox::qt::ui
