#include "ui/foundation/imagefile_p.h"

#include "ui/foundation/svgguard_p.h"

#include <QCache>
#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>
#include <QResource>
#include <QSvgRenderer>

#include <ctime>
#include <initializer_list>

#include <sys/stat.h>

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

QString joined(char first, std::initializer_list<qint64> numbers)
{
    QString text = QStringLiteral("hoxq") + QLatin1Char(first);
    for (const qint64 number : numbers)
        text += QString::number(number, 36) + QLatin1Char(' ');
    return text;
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

ImageFile::ImageFile(const QString &path, char kind)
    : m_path(path)
{
    if (isResource(path))
        identifyResource(kind);
    else
        identifyFile(kind);
}

ImageFile::~ImageFile() = default;

void ImageFile::identifyResource(char kind)
{
    const QResource resource(m_path);
    m_is_safe = resource.data() != nullptr; // a folder has none
    m_key = joined(kind, { qint64(reinterpret_cast<quintptr>(resource.data())), resource.size() });
}

// A pipe would block and a device never end, so only regular files are opened. A file written
// within the granularity of its time stamp could change once more unnoticed.
void ImageFile::identifyFile(char kind)
{
    const qint64 max_bytes = qint64(64) << 20;
    const qint64 settling_s = 2;
    struct stat info = {};
    if (stat(QFile::encodeName(m_path).constData(), &info) != 0)
        return;
    m_is_safe = S_ISREG(info.st_mode) && info.st_size <= max_bytes;
    if (info.st_mtim.tv_sec + settling_s < time(nullptr))
        m_key = joined(kind,
            { qint64(info.st_dev), qint64(info.st_ino), info.st_size, info.st_mtim.tv_sec,
                info.st_mtim.tv_nsec });
}

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
    const QString key = m_key + QLatin1Char('x') + joined(' ', { px.width(), px.height() });
    if (!m_key.isEmpty() && QPixmapCache::find(key, &pixmap))
        return pixmap;
    if (m_is_read || read().isValid())
        pixmap = render(px);
    if (!m_key.isEmpty() && !pixmap.isNull())
        QPixmapCache::insert(key, pixmap);
    return pixmap;
}

VectorFile::VectorFile(const QString &path)
    : ImageFile(path, 'v')
{
}

VectorFile::~VectorFile() = default;

QSvgRenderer *VectorFile::renderer()
{
    return isSafe() && read().isValid() ? m_renderer.get() : nullptr;
}

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
    : ImageFile(path, 'b')
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
