// SPDX-License-Identifier: MIT
#include "ui/text/vexologo.h"

#include "ui/files/imagefile_p.h"
#include "ui/text/logo_p.h"

namespace vexo::hox::qt::ui {

namespace {

QImage imageOn(unsigned int *pixels, int width, int height)
{
    return QImage(reinterpret_cast<uchar *>(pixels), width, height, QImage::Format_ARGB32);
}

} // namespace

VexoLogo::VexoLogo(
    unsigned int width, unsigned int height, QImage::Format format, const QString &file)
    : m_image(logoImage(int(width), int(height), format))
    , m_file(file)
{
}

VexoLogo::VexoLogo(
    unsigned int width, unsigned int height, unsigned int *pixels, const QString &file)
    : m_image(imageOn(pixels, int(width), int(height)))
    , m_file(file)
    , m_pixels(pixels)
{
}

void VexoLogo::paint(float width_mm)
{
    reclaimBuffer();
    ImageFile file(m_file, ImageFile::Kind::Vector);
    drawLogo(&m_image, &file, logoRect(file.read(), double(width_mm), m_image.size()));
}

// The painter would move to memory of its own while someone holds a copy of the image.
void VexoLogo::reclaimBuffer()
{
    if (m_pixels && !m_image.isDetached())
        m_image = imageOn(m_pixels, m_image.width(), m_image.height());
}

} // namespace vexo::hox::qt::ui
