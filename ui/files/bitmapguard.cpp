// SPDX-License-Identifier: MIT
#include "ui/files/bitmapguard_p.h"

#include "ui/files/imagefile_p.h"

#include <QBuffer>
#include <QImageReader>

namespace vexo::hox::qt::ui {

namespace {

// A JPEG can send its picture in any number of passes, each of which costs as much as a whole one.
// A progressive one has about ten, and a preview of its own some more.
bool hasFewPasses(const QByteArray &bitmap)
{
    const int max_passes = 64;
    return bitmap.count("\xff\xda") <= max_passes;
}

// Some formats are decoded to two or four bytes per channel.
int bytesPerPixel(QImage::Format format)
{
    const int most = 16;
    return format == QImage::Format_Invalid
        ? most
        : (QImage::toPixelFormat(format).bitsPerPixel() + 7) / 8;
}

quint32 number(const QByteArray &bytes, int pos, int size)
{
    quint32 value = 0;
    while (--size >= 0)
        value = value << 8 | (pos + size < bytes.size() ? uchar(bytes.at(pos + size)) : 0);
    return value;
}

// A GIF is decoded onto a canvas whose size stands in its head; the size that is told is its
// picture's.
QSize canvas(const QByteArray &gif)
{
    return QSize(int(number(gif, 6, 2)), int(number(gif, 8, 2)));
}

// An icon file tells sizes of its own for the pictures within, in bytes and in pixels.
bool isHarmlessIcon(const QByteArray &icon)
{
    const int head = 6;
    const int entry = 16;
    const int count = int(number(icon, 4, 2));
    for (int i = 0; i < count; ++i) {
        if (number(icon, head + i * entry + 8, 4) > quint32(icon.size()))
            return false;
    }
    const QByteArray png = "\x89PNG\r\n\x1a\n";
    for (int pos = icon.indexOf(png); pos >= 0; pos = icon.indexOf(png, pos + 1)) {
        if (decodedBytes(QByteArray::fromRawData(icon.constData() + pos, icon.size() - pos)) < 0)
            return false;
    }
    return true;
}

} // namespace

qint64 decodedBytes(const QByteArray &bitmap)
{
    QBuffer buffer;
    buffer.setData(bitmap);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    const QByteArray format = reader.format();
    if (format.isEmpty())
        return 0;
    // The size of a vector is found out by drawing it.
    if (format.startsWith("svg") || (format == "jpeg" && !hasFewPasses(bitmap)))
        return -1;
    QSize px = reader.size();
    if (format == "gif")
        px = px.expandedTo(canvas(bitmap));
    const bool is_icon = format == "ico" || format == "cur";
    if (!ImageFile::isHoldable(px) || (is_icon && !isHarmlessIcon(bitmap)))
        return -1;
    return qint64(px.width()) * px.height() * bytesPerPixel(reader.imageFormat());
}

} // namespace vexo::hox::qt::ui
