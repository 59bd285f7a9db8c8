// SPDX-License-Identifier: MIT
#include "ui/text/vexologolabel.h"

#include "ui/files/imagefile_p.h"
#include "ui/foundation/plainlabel_p.h"
#include "ui/painting/iconpixmap_p.h"
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
}

void VexoLogoLabel::setMmWidth(double mm)
{
    m_width_in_mm = mm;
    update();
}

void VexoLogoLabel::setImageWidth(int px)
{
    m_image_width = px;
    forgetImage();
}

void VexoLogoLabel::setImageHeight(int px)
{
    m_image_height = px;
    forgetImage();
}

void VexoLogoLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRectF rect = renderImage(pixelRatio(painter));
    if (rect.isEmpty() || m_image.isNull())
        return;
    painter.setRenderHint(QPainter::SmoothPixmapTransform); // where the image is no whole pixels
    painter.drawImage(rect, m_image, m_image.rect());
}

void VexoLogoLabel::forgetImage()
{
    m_image = QImage();
    m_drawn_key.clear();
    update();
}

// A file that has not changed since the last paint need not be drawn again. Returns where it is.
QRectF VexoLogoLabel::renderImage(double ratio)
{
    ImageFile file(m_file, ImageFile::Kind::Vector);
    const QSize natural = file.naturalSize();
    const QRectF rect = logoRect(natural, m_width_in_mm, natural);
    const bool is_other_size = m_drawn_key.isEmpty() || m_drawn_ratio != ratio;
    if (rect.isEmpty() || (!is_other_size && m_drawn_key == file.key() && m_drawn_rect == rect))
        return rect;
    if (is_other_size)
        m_image = logoImage(m_image_width, m_image_height, m_format, ratio);
    drawLogo(&m_image, &file, rect);
    m_drawn_key = file.key();
    m_drawn_rect = rect;
    m_drawn_ratio = ratio;
    return rect;
}

} // namespace vexo::hox::qt::ui
