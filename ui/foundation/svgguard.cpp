#include "ui/foundation/svgguard_p.h"

#include "ui/foundation/imagefile_p.h"

#include <QBuffer>
#include <QImageReader>
#include <QPair>
#include <QSet>
#include <QVector>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>

#include <zlib.h>

namespace vexo::hox::qt::ui {

namespace {

// The renderer looks attributes up by their written name, whatever the prefix is bound to.
QString attribute(const QXmlStreamReader &xml, const char *name)
{
    return xml.attributes().value(QLatin1String(name)).toString();
}

// Only the header is read. Links to other files are refused: the renderer would open whatever they
// name, be it a pipe. So are vectors, which could hold anything again.
qint64 embeddedPixels(const QString &link)
{
    const qint64 refused = ImageFile::MAX_PIXELS + 1;
    const QLatin1String mark("base64,");
    const int data = link.lastIndexOf(mark);
    if (!link.startsWith(QLatin1String("data")) || data < 0)
        return refused;
    QByteArray bytes = QByteArray::fromBase64(link.mid(data + mark.size()).toLatin1());
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    if (reader.format().startsWith("svg"))
        return refused;
    const QSize size = reader.size();
    return size.isValid() ? qint64(size.width()) * size.height() : 0;
}

/// Collects, in one walk over the elements, what can make rendering explode.
class Census
{
public:
    void enter(const QXmlStreamReader &xml)
    {
        ++m_elements;
        m_ids.append({ attribute(xml, "id"), attribute(xml, "xml:id") });
        const QString link = attribute(xml, "xlink:href");
        if (xml.name() == QLatin1String("image"))
            m_pixels = qMin(m_pixels + embeddedPixels(link), ImageFile::MAX_PIXELS + 1);
        if (xml.name() != QLatin1String("use"))
            return;
        m_targets.insert(link.mid(1));
        m_places.append(m_ids);
    }

    void leave() { m_ids.removeLast(); }

    bool isHarmless() const
    {
        const int max_uses = 1024;
        const double max_shapes = 1e6;
        int nested = 0;
        for (const auto &place : m_places)
            nested += std::any_of(place.cbegin(), place.cend(), [this](const auto &ids) {
                return m_targets.contains(ids.first) || m_targets.contains(ids.second);
            });
        // Nested uses multiply most in groups of three, each group using the next: 3^(nested/3).
        const double shapes
            = (1 + m_places.size() - nested) * m_elements * std::pow(3, nested / 3.0);
        return m_pixels <= ImageFile::MAX_PIXELS && m_places.size() <= max_uses
            && shapes <= max_shapes;
    }

private:
    using Ids = QPair<QString, QString>; // of an element: id and xml:id

    double m_elements = 0;
    QVector<Ids> m_ids; // of the open elements, innermost last
    QSet<QString> m_targets; // ids that are used somewhere
    QVector<QVector<Ids>> m_places; // of each use: the elements around it
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
