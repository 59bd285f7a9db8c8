#include "ui/foundation/bitmapguard_p.h"

#include "ui/foundation/imagefile_p.h"

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
    const QSize px = reader.size();
    if (!ImageFile::isHoldable(px))
        return -1;
    return qint64(px.width()) * px.height() * bytesPerPixel(reader.imageFormat());
}

} // namespace vexo::hox::qt::ui
