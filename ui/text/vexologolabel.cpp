// SPDX-License-Identifier: MIT
#include "ui/text/vexologolabel.h"

#include "ui/foundation/imagefile_p.h"
#include "ui/foundation/plainlabel_p.h"
#include "ui/text/logo_p.h"

#include <QPainter>

namespace vexo::hox::qt::ui {

VexoLogoLabel::VexoLogoLabel(QWidget *parent, float width_mm, unsigned int image_width,
    unsigned int image_height, QImage::Format format, const QString &file)
    : QLabel(parent)
    , m_format(format)
    , m_file(file)
    , m_width_in_mm(double(width_mm))
    , m_image_width(int(image_width))
    , m_image_height(int(image_height))
{
    showPlain(this);
    makeImage();
}

void VexoLogoLabel::setMmWidth(double mm)
{
    m_width_in_mm = mm;
    update();
}

void VexoLogoLabel::setImageWidth(int px)
{
    m_image_width = px;
    makeImage();
}

void VexoLogoLabel::setImageHeight(int px)
{
    m_image_height = px;
    makeImage();
}

void VexoLogoLabel::paintEvent(QPaintEvent *)
{
    const QRectF rect = renderImage();
    if (rect.isEmpty() || m_image.isNull())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform); // where the image is no whole pixels
    painter.drawImage(rect, m_image, m_image.rect());
}

void VexoLogoLabel::makeImage()
{
    m_image = logoImage(m_image_width, m_image_height, m_format);
    m_drawn_key.clear();
    update();
}

// A file that has not changed since the last paint need not be drawn again. Returns where it is.
QRectF VexoLogoLabel::renderImage()
{
    ImageFile file(m_file, ImageFile::Kind::Vector);
    const QSize natural = file.naturalSize();
    const QRectF rect = logoRect(natural, m_width_in_mm, natural);
    if (m_drawn_key.isEmpty() || m_drawn_key != file.key() || m_drawn_rect != rect)
        drawLogo(&m_image, &file, rect);
    m_drawn_key = file.key();
    m_drawn_rect = rect;
    return rect;
}

} // namespace vexo::hox::qt::ui
