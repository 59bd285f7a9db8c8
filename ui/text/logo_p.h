#pragma once
// SPDX-License-Identifier: MIT

#include <QImage>
#include <QRectF>

namespace vexo::hox::qt::ui {

class ImageFile;

/// A new image of undefined content; null beyond 8 Mpx, which no panel shows. It has \a ratio times
/// as many pixels where that leaves it within them.
QImage logoImage(int width, int height, QImage::Format format, double ratio = 1);

/// Where an SVG of the size \a natural stands at a width of \a mm millimetres, centred in \a room
/// px. Empty when there is nothing to draw: no size, no width, or no number.
QRectF logoRect(const QSize &natural, double mm, const QSizeF &room);

/// Makes \a image white and draws the SVG into \a rect, nothing when it cannot be read or the
/// rectangle is empty. Works in whatever thread.
void drawLogo(QImage *image, ImageFile *file, const QRectF &rect);

} // namespace vexo::hox::qt::ui
