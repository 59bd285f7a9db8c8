#pragma once
// SPDX-License-Identifier: MIT

#include <QColor>
#include <QImage>

/// The smallest rectangle around all pixels for which \a is_in holds; empty when there are none.
template <typename Predicate>
QRect boxWhere(const QImage &image, Predicate is_in)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (is_in(image.pixel(x, y)))
                box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

/// The same of all pixels that are exactly \a color.
inline QRect boxOf(const QImage &image, const QColor &color)
{
    const QRgb wanted = color.rgba();
    return boxWhere(image, [=](QRgb pixel) { return pixel == wanted; });
}

/// Whether a colour differs by more than \a step of 255.
inline bool differ(QRgb first, QRgb second, int step)
{
    return qAbs(qRed(first) - qRed(second)) > step || qAbs(qGreen(first) - qGreen(second)) > step
        || qAbs(qBlue(first) - qBlue(second)) > step;
}

/// From the darkest to the lightest pixel, 0 to 255.
inline int spread(const QImage &image)
{
    int darkest = 255;
    int lightest = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            darkest = qMin(darkest, qGray(image.pixel(x, y)));
            lightest = qMax(lightest, qGray(image.pixel(x, y)));
        }
    }
    return lightest - darkest;
}
