// SPDX-License-Identifier: MIT
#include "uitest/picturedifference_p.h"

#include <QPainter>

#include <cstdlib>

namespace vexo::hox::qt::uitest {

namespace {

const int gap_px = 10;

bool differ(QRgb first, QRgb second, int step)
{
    return std::abs(qRed(first) - qRed(second)) > step
        || std::abs(qGreen(first) - qGreen(second)) > step
        || std::abs(qBlue(first) - qBlue(second)) > step;
}

// Pale where nothing differs, so that one sees where the rest is.
QRgb pale(QRgb color)
{
    const int grey = 192 + qGray(color) / 4;
    return qRgb(grey, grey, grey);
}

struct Marked
{
    QImage picture;
    qint64 different = 0; // px
    QRect where;
};

Marked mark(const QImage &was, const QImage &is, int step)
{
    Marked marked{ was, 0, QRect() };
    for (int y = 0; y < was.height(); ++y) {
        const auto *left = reinterpret_cast<const QRgb *>(was.constScanLine(y));
        const auto *right = reinterpret_cast<const QRgb *>(is.constScanLine(y));
        auto *out = reinterpret_cast<QRgb *>(marked.picture.scanLine(y));
        for (int x = 0; x < was.width(); ++x) {
            const bool is_different = differ(left[x], right[x], step);
            out[x] = is_different ? qRgb(255, 0, 0) : pale(left[x]);
            marked.different += is_different;
            if (is_different)
                marked.where |= QRect(x, y, 1, 1);
        }
    }
    return marked;
}

QImage beside(const QVector<QImage> &pictures)
{
    QSize size(gap_px, 0);
    for (const QImage &picture : pictures)
        size
            = QSize(size.width() + picture.width() + gap_px, qMax(size.height(), picture.height()));
    QImage all(size + QSize(0, 2 * gap_px), QImage::Format_RGB32);
    all.fill(Qt::white);
    QPainter painter(&all);
    int x = gap_px;
    for (const QImage &picture : pictures) {
        painter.drawImage(x, gap_px, picture);
        x += picture.width() + gap_px;
    }
    return all;
}

QString sizeText(const QImage &picture)
{
    return QStringLiteral("%1 x %2 px").arg(picture.width()).arg(picture.height());
}

} // namespace

PictureDifference differenceOf(
    const QImage &was, const QImage &is, const PictureTolerance &tolerance)
{
    const QImage former = was.convertToFormat(QImage::Format_RGB32);
    const QImage current = is.convertToFormat(QImage::Format_RGB32);
    PictureDifference difference;
    if (former.size() != current.size()) {
        difference.text = QStringLiteral("was %1, is %2").arg(sizeText(former), sizeText(current));
        difference.picture = beside({ former, current });
        return difference;
    }
    const Marked marked = mark(former, current, tolerance.step);
    const qint64 pixels = qMax(qint64(1), qint64(was.width()) * was.height());
    difference.share = double(marked.different) / double(pixels);
    difference.is_accepted = difference.share <= tolerance.share;
    difference.text = QStringLiteral("%1 of %2 px differ, between (%3, %4) and (%5, %6)")
                          .arg(marked.different)
                          .arg(pixels)
                          .arg(marked.where.left())
                          .arg(marked.where.top())
                          .arg(marked.where.right())
                          .arg(marked.where.bottom());
    if (marked.different > 0)
        difference.picture = beside({ former, current, marked.picture });
    else
        difference.text = QStringLiteral("nothing differs");
    return difference;
}

} // namespace vexo::hox::qt::uitest
