#include "ui/foundation/svgguard_p.h"

#include "ui/foundation/imagefile_p.h"

#include <QBuffer>
#include <QImageReader>
#include <QSet>
#include <QStringList>
#include <QVector>
#include <QXmlStreamReader>

#include <zlib.h>

namespace vexo::hox::qt::ui {

namespace {

QString linkOf(const QXmlStreamReader &xml)
{
    const QString qualified
        = xml.attributes()
              .value(QLatin1String("http://www.w3.org/1999/xlink"), QLatin1String("href"))
              .toString();
    return qualified.isEmpty() ? xml.attributes().value(QLatin1String("href")).toString()
                               : qualified;
}

// Only the header is read. Links to other files are refused: the renderer would open whatever they
// name, be it a pipe.
qint64 embeddedPixels(const QString &link)
{
    const int data = link.indexOf(QLatin1String("base64,"));
    if (!link.startsWith(QLatin1String("data:")) || data < 0)
        return ImageFile::MAX_PIXELS + 1;
    QByteArray bytes = QByteArray::fromBase64(link.mid(data + 7).toLatin1());
    QBuffer buffer(&bytes);
    const QSize size = QImageReader(&buffer).size();
    return size.isValid() ? qint64(size.width()) * size.height() : 0;
}

/// Collects, in one walk over the elements, what can make rendering explode.
class Census
{
public:
    void enter(const QXmlStreamReader &xml)
    {
        m_ids.append(xml.attributes().value(QLatin1String("id")).toString());
        if (xml.name() == QLatin1String("image"))
            m_pixels = qMin(m_pixels + embeddedPixels(linkOf(xml)), ImageFile::MAX_PIXELS + 1);
        if (xml.name() != QLatin1String("use"))
            return;
        m_targets.insert(linkOf(xml).mid(1));
        m_places.append(m_ids);
    }

    void leave() { m_ids.removeLast(); }

    bool isHarmless() const
    {
        const int max_uses = 1024;
        const int max_nested_uses = 24; // at worst a shape is drawn 3^8 times through them
        int nested = 0;
        for (const QStringList &place : m_places)
            nested += m_targets.intersects(QSet<QString>(place.cbegin(), place.cend()));
        return m_pixels <= ImageFile::MAX_PIXELS && m_places.size() <= max_uses
            && nested <= max_nested_uses;
    }

private:
    QStringList m_ids; // of the open elements, innermost last
    QSet<QString> m_targets; // ids that are used somewhere
    QVector<QStringList> m_places; // of each use: the elements around it
    qint64 m_pixels = 0;
};

} // namespace

QByteArray svgText(const QByteArray &bytes)
{
    if (!bytes.startsWith("\x1f\x8b"))
        return bytes;
    const int max_text_bytes = 64 << 20;
    z_stream stream = {};
    if (inflateInit2(&stream, 16 + MAX_WBITS) != Z_OK) // 16: gzip
        return QByteArray();
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(bytes.constData()));
    stream.avail_in = static_cast<uInt>(bytes.size());
    QByteArray text;
    int result = Z_OK;
    while (result == Z_OK && text.size() < max_text_bytes) {
        QByteArray piece(1 << 16, Qt::Uninitialized);
        stream.next_out = reinterpret_cast<Bytef *>(piece.data());
        stream.avail_out = static_cast<uInt>(piece.size());
        result = inflate(&stream, Z_NO_FLUSH);
        text.append(piece.constData(), piece.size() - static_cast<int>(stream.avail_out));
    }
    inflateEnd(&stream);
    return result == Z_STREAM_END ? text : QByteArray();
}

bool isHarmlessSvg(const QByteArray &text)
{
    QXmlStreamReader xml(text);
    Census census;
    while (!xml.atEnd()) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::StartElement)
            census.enter(xml);
        else if (token == QXmlStreamReader::EndElement)
            census.leave();
    }
    return !xml.hasError() && census.isHarmless();
}

} // namespace vexo::hox::qt::ui
