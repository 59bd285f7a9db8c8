#pragma once

#include <QPixmap>
#include <QSize>
#include <QString>

#include <memory>

class QSvgRenderer;

namespace vexo::hox::qt::ui {

/// An image file on its way to icons: its natural size, and renderings of it at whole pixel sizes.
/// Both are kept for all icons of the process as long as the file stays the same, so it is read
/// again only after it has changed. Whatever cannot be read safely (no regular file, more than
/// 64 MB, a header that promises more than MAX_PIXELS, a hostile SVG) counts as unreadable, without
/// a message. A resource is the application's own and is not examined.
class ImageFile
{
public:
    static constexpr int MAX_SIDE = 32767; ///< px; what the toolkit's painter can address
    static constexpr qint64 MAX_PIXELS = qint64(64) << 20; ///< 256 MB in memory

    virtual ~ImageFile();
    ImageFile(const ImageFile &) = delete;
    ImageFile &operator=(const ImageFile &) = delete;

    /// The size the file gives itself; invalid when it cannot be read.
    QSize naturalSize();
    /// The whole image stretched to \a px; null for an empty size and beyond the limits.
    QPixmap pixmap(const QSize &px);
    /// Stands for the content; empty for a file that may still be changing or that is gone.
    const QString &key() const { return m_key; }

protected:
    /// \a kind keeps the renderings of both kinds apart.
    ImageFile(const QString &path, char kind);

    bool isSafe() const { return m_is_safe; }
    /// Reads the file and returns its natural size, invalid on failure.
    virtual QSize read() = 0;
    /// Renders what read() has read.
    virtual QPixmap render(const QSize &px) = 0;

    const QString m_path;

private:
    void identifyResource(char kind);
    void identifyFile(char kind);

    bool m_is_safe = false;
    QString m_key;
    bool m_is_read = false;
};

/// An SVG file, plain or gzip-compressed.
class VectorFile : public ImageFile
{
public:
    explicit VectorFile(const QString &path);
    ~VectorFile() override;

    /// Reads the file now, past all caches and in whatever thread; null when it cannot be read.
    QSvgRenderer *renderer();

protected:
    QSize read() override;
    QPixmap render(const QSize &px) override;

private:
    std::unique_ptr<QSvgRenderer> m_renderer;
};

/// A file of any format that the toolkit reads as an image. Vector formats, which it recognises by
/// content, are rendered at the asked size and stay crisp.
class BitmapFile : public ImageFile
{
public:
    explicit BitmapFile(const QString &path);
    ~BitmapFile() override;

protected:
    QSize read() override;
    QPixmap render(const QSize &px) override;

private:
    std::unique_ptr<QSvgRenderer> m_renderer; // of a vector format
    QPixmap m_pixmap;
};

} // namespace vexo::hox::qt::ui
