#pragma once
// SPDX-License-Identifier: MIT

#include <QImage>
#include <QRect>

namespace vexo::hox::qt::uitest {

/// The contrast ratio of two opaque colours, 1 to 21, by their relative luminances as WCAG 2.2
/// defines them.
double contrastRatio(QRgb one, QRgb other);

/// The two colours at a place, and how far they differ.
struct Contrast
{
    double ratio = 0; ///< 0 if there is none
    QRgb ink = 0;
    QRgb ground = 0;
};

/// The ratio between two pictures of 32 bit within \a px that a \a share of its pixels do not
/// exceed; only of pixels that differ if \a differing is set.
Contrast contrastBetween(
    const QImage &ink, const QImage &ground, const QRect &px, double share, bool differing);

} // namespace vexo::hox::qt::uitest
