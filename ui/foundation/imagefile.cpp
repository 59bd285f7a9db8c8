#include "ui/foundation/imagefile_p.h"

#include "ui/foundation/svgguard_p.h"

#include <QCache>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace vexo::hox::qt::ui {

namespace {

QCache<QString, QSize> &naturalSizes()
{
    static QCache<QString, QSize> sizes(256);
    return sizes;
}

bool isResource(const QString &path)
{
    return path.startsWith(QLatin1Char(':'));
}

// A file written within the granularity of its time stamp could change once more unnoticed.
bool isSettled(const QFileInfo &info)
{
    const qint64 settling_ms = 2000;
    return isResource(info.filePath())
        || info.lastModified().msecsTo(QDateTime::currentDateTimeUtc()) > settling_ms;
}

QString cacheKey(const QFileInfo &info, QLatin1Char kind)
{
    if (!isSettled(info))
        return QString();
    return QStringLiteral("hoxq %1 %2 %3 %4")
        .arg(kind)
        .arg(info.size())
        .arg(info.lastModified().toMSecsSinceEpoch())
        .arg(info.absoluteFilePath());
}

// A pipe would block and a device never end, so only regular files are opened.
bool isSafe(const QFileInfo &info)
{
    const qint64 max_bytes = qint64(64) << 20;
    return info.isFile() && (isResource(info.filePath()) || info.size() <= max_bytes);
}

bool isHoldable(const QSize &px)
{
    return !px.isEmpty() && px.width() <= ImageFile::MAX_SIDE && px.height() <= ImageFile::MAX_SIDE
        && qint64(px.width()) * px.height() <= ImageFile::MAX_PIXELS;
}

// Handed over as bytes: with a path the renderer prints its own warning about a broken file.
std::unique_ptr<QSvgRenderer> loadSvg(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return nullptr;
    const QByteArray text = svgText(file.readAll());
    if (!isResource(path) && !isHarmlessSvg(text))
        return nullptr;
    auto renderer = std::make_unique<QSvgRenderer>();
    return renderer->load(text) ? std::move(renderer) : nullptr;
}

QPixmap renderSvg(QSvgRenderer *renderer, const QSize &px)
{
    QPixmap pixmap(px);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer->render(&painter);
    return pixmap;
}

} // namespace

ImageFile::ImageFile(const QString &path, QLatin1Char kind)
    : m_path(path)
    , m_is_safe(isSafe(QFileInfo(path)))
    , m_key(cacheKey(QFileInfo(path), kind))
{
}

ImageFile::~ImageFile() = default;

QSize ImageFile::naturalSize()
{
    if (!m_is_safe)
        return QSize();
    if (const QSize *known = naturalSizes().object(m_key))
        return *known;
    const QSize size = read();
    m_is_read = true;
    if (size.isValid() && !m_key.isEmpty())
        naturalSizes().insert(m_key, new QSize(size));
    return size;
}

QPixmap ImageFile::pixmap(const QSize &px)
{
    QPixmap pixmap;
    if (!m_is_safe || !isHoldable(px))
        return pixmap;
    const QString key = QStringLiteral("%1 %2x%3").arg(m_key).arg(px.width()).arg(px.height());
    if (!m_key.isEmpty() && QPixmapCache::find(key, &pixmap))
        return pixmap;
    if (m_is_read || read().isValid())
        pixmap = render(px);
    if (!m_key.isEmpty() && !pixmap.isNull())
        QPixmapCache::insert(key, pixmap);
    return pixmap;
}

VectorFile::VectorFile(const QString &path)
    : ImageFile(path, QLatin1Char('v'))
{
}

VectorFile::~VectorFile() = default;

QSize VectorFile::read()
{
    m_renderer = loadSvg(m_path);
    return m_renderer ? m_renderer->defaultSize() : QSize();
}

QPixmap VectorFile::render(const QSize &px)
{
    return renderSvg(m_renderer.get(), px);
}

BitmapFile::BitmapFile(const QString &path)
    : ImageFile(path, QLatin1Char('b'))
{
}

BitmapFile::~BitmapFile() = default;

QSize BitmapFile::read()
{
    QImageReader reader(m_path);
    reader.setDecideFormatFromContent(true); // an SVG may bear any name
    if (reader.format().startsWith("svg")) {
        m_renderer = loadSvg(m_path);
        return m_renderer ? m_renderer->defaultSize() : QSize();
    }
    if (!isHoldable(reader.size()))
        return QSize();
    m_pixmap = QPixmap::fromImageReader(&reader);
    return m_pixmap.isNull() ? QSize() : m_pixmap.size();
}

QPixmap BitmapFile::render(const QSize &px)
{
    if (m_renderer)
        return renderSvg(m_renderer.get(), px);
    return m_pixmap.scaled(px, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace vexo::hox::qt::ui
