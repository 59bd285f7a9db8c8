// SPDX-License-Identifier: MIT
#include "uitest/contrastratio_p.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace vexo::hox::qt::uitest {

namespace {

const int most_samples = 4000; // of one ink

std::array<double, 256> linearParts()
{
    std::array<double, 256> parts{};
    for (size_t i = 0; i < parts.size(); ++i) {
        const double part = double(i) / 255;
        parts.at(i) = part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    }
    return parts;
}

// Of an image of 32 bit, without the checks of QImage::pixel().
QRgb colorAt(const QImage &image, const QPoint &at)
{
    return reinterpret_cast<const QRgb *>(image.constScanLine(at.y()))[at.x()];
}

double luminance(QRgb color)
{
    static const std::array<double, 256> linear = linearParts();
    const auto part = [](int value) { return linear.at(size_t(value)); };
    return 0.2126 * part(qRed(color)) + 0.7152 * part(qGreen(color)) + 0.0722 * part(qBlue(color));
}

} // namespace

double contrastRatio(QRgb one, QRgb other)
{
    const double light = luminance(one) + 0.05;
    const double dark = luminance(other) + 0.05;
    return std::max(light, dark) / std::min(light, dark);
}

Contrast contrastBetween(
    const QImage &ink, const QImage &ground, const QRect &px, double share, bool differing)
{
    const QRect area = px & ink.rect() & ground.rect();
    const int step = 1 + area.width() * area.height() / most_samples;
    std::vector<Contrast> samples;
    for (int i = 0; i < area.width() * area.height(); i += step) {
        const QPoint at = area.topLeft() + QPoint(i % area.width(), i / area.width());
        const QRgb one = colorAt(ink, at);
        const QRgb other = colorAt(ground, at);
        if (!differing || one != other)
            samples.push_back({ contrastRatio(one, other), one, other });
    }
    if (samples.empty())
        return Contrast();
    const auto at = samples.begin() + std::ptrdiff_t(share * double(samples.size() - 1));
    std::nth_element(samples.begin(), at, samples.end(),
        [](const Contrast &one, const Contrast &other) { return one.ratio < other.ratio; });
    return *at;
}

} // namespace vexo::hox::qt::uitest
