#pragma once
// SPDX-License-Identifier: MIT

#include "ui/files/inputfile_p.h"

#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QSize>

#include <memory>

class QPainter;
class QRectF;
class QSvgRenderer;

namespace vexo::hox::qt::ui {

/// An image file on its way to icons: its natural size, and renderings of it at whole pixel sizes.
/// Both are kept for all icons of the process as long as the content stays the same, so a file is
/// read again only after it has changed. Whatever cannot be read safely (no regular file, more than
/// MAX_BYTES, a header that promises more than MAX_PIXELS, a hostile SVG) counts as unreadable,
/// without a message. A resource is the application's own and is not examined. Names are looked up
/// as QPixmap does: in search paths, and without a suffix with each that the toolkit reads.
class ImageFile
{
public:
    static constexpr int MAX_SIDE = 32767; ///< px; what the toolkit's painter can address
    static constexpr qint64 MAX_PIXELS = qint64(8) << 20; ///< a 4K screen; 32 MB in memory
    static constexpr qint64 MAX_BYTES = qint64(16) << 20;

    /// Vector is an SVG file, plain or gzip-compressed. Any is each format that the toolkit reads;
    /// it recognises them by content, and vectors stay crisp.
    enum class Kind { Vector, Any };

    ImageFile(const QString &path, Kind kind);
    ~ImageFile();
    ImageFile(const ImageFile &) = delete;
    ImageFile &operator=(const ImageFile &) = delete;

    /// Whether an image of this size may be made.
    static bool isHoldable(const QSize &px);

    /// Stands for the content; empty for a file that cannot be read.
    const QString &key() const { return m_key; }
    /// The size the file gives itself; invalid when it cannot be read. GUI thread only.
    QSize naturalSize();
    /// The whole image stretched to \a px; null for an empty size, beyond the limits and when it
    /// would take too long. GUI thread only.
    QPixmap pixmap(const QSize &px);
    /// An icon as QIcon makes it of a path, but read now: a bitmap at its own size, a vector at
    /// each that is asked for. Null when the file cannot be read. GUI thread only.
    QIcon icon();

    /// Reads the file now, past all caches and in whatever thread, and returns naturalSize().
    QSize read();
    /// The image as pixmap() gives it, past all caches and in whatever thread.
    QImage image(const QSize &px);
    /// Draws a vector into \a rect of the painter's device, as image() does.
    void draw(QPainter *painter, const QRectF &rect);

private:
    QSize parse();
    QSize parseVector(const QByteArray &bytes);
    QSize parseBitmap(const QByteArray &bytes);

    InputFile m_file;
    const Kind m_kind;
    const QString m_key;
    bool m_is_read = false;
    QSize m_size; // as read
    std::shared_ptr<QSvgRenderer> m_renderer; // of a vector
    QImage m_image; // of a bitmap
};

} // namespace vexo::hox::qt::ui
