// SPDX-License-Identifier: MIT
#include "ui/files/imagefile_p.h"

#include "ui/files/bitmapguard_p.h"
#include "ui/files/rendercost_p.h"
#include "ui/files/svgguard_p.h"

#include <QApplication>
#include <QBuffer>
#include <QCache>
#include <QFileInfo>
#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>
#include <QStyle>
#include <QStyleOption>
#include <QSvgRenderer>

namespace vexo::hox::qt::ui {

namespace {

QCache<QString, QSize> &naturalSizes()
{
    static QCache<QString, QSize> sizes(256);
    return sizes;
}

// A name without a suffix stands for the first file that has one of the toolkit's.
InputFile found(const QString &path)
{
    const InputFile file(path, ImageFile::MAX_BYTES);
    if (file.exists() || path.isEmpty() || !QFileInfo(path).completeSuffix().isEmpty())
        return file;
    const QList<QByteArray> suffixes = QImageReader::supportedImageFormats();
    for (const QByteArray &suffix : suffixes) {
        const QString name = path + QLatin1Char('.') + QLatin1String(suffix);
        const InputFile candidate(name, ImageFile::MAX_BYTES);
        if (candidate.exists())
            return candidate;
    }
    return file;
}

QString kindKey(const QString &content_key, ImageFile::Kind kind)
{
    const char *const prefix = kind == ImageFile::Kind::Vector ? "hoxqv" : "hoxqb";
    return content_key.isEmpty() ? QString() : QLatin1String(prefix) + content_key;
}

QString sizeKey(const QString &key, const QSize &px)
{
    return key + QString::number(px.width(), 36) + QLatin1Char('x')
        + QString::number(px.height(), 36);
}

QImage rendered(QSvgRenderer *renderer, const QSize &px)
{
    QImage image(px, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer->render(&painter);
    return image;
}

bool isTimely(QSvgRenderer *renderer, const QSize &px)
{
    return isRenderedInTime(renderer, px, QRectF(QPointF(), px));
}

/// Renders a vector at each size once.
class VectorIconEngine : public QIconEngine
{
public:
    VectorIconEngine(const std::shared_ptr<QSvgRenderer> &renderer, const QString &key)
        : m_renderer(renderer)
        , m_key(key)
    {
    }

    QIconEngine *clone() const override { return new VectorIconEngine(*this); }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const double ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
        painter->drawPixmap(rect, pixmap(rect.size() * ratio, mode, state));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override
    {
        const QPixmap plain
            = plainPixmap(m_renderer->defaultSize().scaled(size, Qt::KeepAspectRatio));
        if (mode == QIcon::Normal || plain.isNull())
            return plain;
        QStyleOption option(0);
        option.palette = QGuiApplication::palette();
        return QApplication::style()->generatedIconPixmap(mode, plain, &option);
    }

private:
    QPixmap plainPixmap(const QSize &px) const
    {
        QPixmap pixmap;
        const QString key = sizeKey(m_key, px);
        if (!ImageFile::isHoldable(px) || QPixmapCache::find(key, &pixmap)
            || !isTimely(m_renderer.get(), px))
            return pixmap;
        pixmap = QPixmap::fromImage(rendered(m_renderer.get(), px));
        QPixmapCache::insert(key, pixmap);
        return pixmap;
    }

    std::shared_ptr<QSvgRenderer> m_renderer;
    QString m_key;
};

} // namespace

ImageFile::ImageFile(const QString &path, Kind kind)
    : m_file(found(path))
    , m_kind(kind)
    , m_key(kindKey(m_file.key(), kind))
{
}

ImageFile::~ImageFile() = default;

bool ImageFile::isHoldable(const QSize &px)
{
    return !px.isEmpty() && px.width() <= MAX_SIDE && px.height() <= MAX_SIDE
        && qint64(px.width()) * px.height() <= MAX_PIXELS;
}

QSize ImageFile::naturalSize()
{
    if (m_key.isEmpty())
        return QSize();
    if (const QSize *known = naturalSizes().object(m_key))
        return *known;
    const QSize size = read();
    if (size.isValid())
        naturalSizes().insert(m_key, new QSize(size));
    return size;
}

QPixmap ImageFile::pixmap(const QSize &px)
{
    QPixmap pixmap;
    const QString key = sizeKey(m_key, px);
    if (m_key.isEmpty() || QPixmapCache::find(key, &pixmap))
        return pixmap;
    pixmap = QPixmap::fromImage(image(px));
    if (!pixmap.isNull())
        QPixmapCache::insert(key, pixmap);
    return pixmap;
}

QIcon ImageFile::icon()
{
    if (!read().isValid())
        return QIcon();
    return m_renderer ? QIcon(new VectorIconEngine(m_renderer, m_key))
                      : QIcon(QPixmap::fromImage(m_image));
}

QSize ImageFile::read()
{
    if (!m_is_read)
        m_size = parse();
    m_is_read = true;
    return m_size;
}

QImage ImageFile::image(const QSize &px)
{
    if (!isHoldable(px) || !read().isValid())
        return QImage();
    if (!m_renderer)
        return m_image.scaled(px, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return m_file.isResource() || isTimely(m_renderer.get(), px) ? rendered(m_renderer.get(), px)
                                                                 : QImage();
}

void ImageFile::draw(QPainter *painter, const QRectF &rect)
{
    const QSize px(painter->device()->width(), painter->device()->height());
    if (read().isValid() && m_renderer
        && (m_file.isResource()
            || isRenderedInTime(m_renderer.get(), px, painter->deviceTransform().mapRect(rect))))
        m_renderer->render(painter, rect);
}

QSize ImageFile::parse()
{
    const QByteArray bytes = m_file.read();
    if (bytes.isNull())
        return QSize();
    return m_kind == Kind::Vector ? parseVector(bytes) : parseBitmap(bytes);
}

// Handed over as bytes: with a path the renderer prints its own warning about a broken file.
QSize ImageFile::parseVector(const QByteArray &bytes)
{
    const QByteArray text = svgText(bytes);
    if (!m_file.isResource() && !isHarmlessSvg(text))
        return QSize();
    auto renderer = std::make_shared<QSvgRenderer>();
    if (!renderer->load(text))
        return QSize();
    m_renderer = renderer;
    return renderer->defaultSize();
}

QSize ImageFile::parseBitmap(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true); // an SVG may bear any name
    if (reader.format().startsWith("svg"))
        return parseVector(bytes);
    const qint64 decoded = decodedBytes(bytes);
    if (decoded < 0 || decoded > 4 * MAX_PIXELS)
        return QSize();
    m_image = reader.read();
    return m_image.isNull() ? QSize() : m_image.size();
}

} // namespace vexo::hox::qt::ui
