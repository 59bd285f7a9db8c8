#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"

#include <QImage>
#include <QString>

namespace vexo::hox::qt::ui {

/// The maker's logo as an image: an SVG file drawn on white, centred, at a width in millimetres.
/// For what is shown without widgets, such as a frame buffer.
class HOXQUI_EXPORT VexoLogo
{
public:
    /// An image of \a width x \a height px, at most 8 Mpx. \a file is an SVG, mostly a resource.
    VexoLogo(unsigned int width, unsigned int height, QImage::Format format, const QString &file);
    /// The image is the caller's buffer of \a width x \a height pixels, 32 bits each as in
    /// QImage::Format_ARGB32, without gaps. It is written in place and must outlive the logo and
    /// all copies of its image.
    VexoLogo(unsigned int width, unsigned int height, unsigned int *pixels, const QString &file);

    /// Reads the file and draws it \a width_mm millimetres wide, as high as its proportions make
    /// it; what the image has no room for is cut. A file that cannot be read, or a width that is
    /// not above 0, leaves the image white. Works in each thread, once ScalingInfo::inst() exists.
    void paint(float width_mm);

    /// Undefined before the first paint(). Null for a size of 0 and beyond 8 Mpx.
    const QImage &image() const { return m_image; }

private:
    void reclaimBuffer();

    QImage m_image;
    QString m_file;
    unsigned int *m_pixels = nullptr; // the caller's, or null
};

} // namespace vexo::hox::qt::ui
