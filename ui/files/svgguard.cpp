// SPDX-License-Identifier: MIT
#include "ui/files/svgguard_p.h"

#include "ui/files/bitmapguard_p.h"
#include "ui/files/cssguard_p.h"
#include "ui/files/imagefile_p.h"

#include <QHash>
#include <QVector>
#include <QXmlStreamReader>

#include <algorithm>
#include <limits>

#include <zlib.h>

namespace vexo::hox::qt::ui {

namespace {

const int MAX_TEXT_BYTES = 4 << 20;

// The reader compares each attribute of an element with all others of it.
bool hasFewAttributes(const QByteArray &text)
{
    const int max_attributes = 128; // of an element
    int count = 0;
    for (const char c : text) {
        if (c == '<')
            count = 0;
        else if (c == '=' && ++count > max_attributes)
            return false;
    }
    return true;
}

// Links to other files are refused: the renderer would open whatever they name, be it a pipe.
qint64 embeddedBytes(const QString &link)
{
    const QLatin1String mark("base64,");
    const int data = link.lastIndexOf(mark);
    if (!link.startsWith(QLatin1String("data")) || data < 0)
        return -1;
    return decodedBytes(QByteArray::fromBase64(link.mid(data + mark.size()).toLatin1()));
}

// Each escape moves the rest of the text.
bool isHarmlessStyle(const QStringRef &css)
{
    const int max_size = 1 << 14;
    const int max_escapes = 16;
    return css.size() <= max_size && css.count(QLatin1Char('\\')) <= max_escapes;
}

bool isText(const QStringRef &name)
{
    return name == QLatin1String("text") || name == QLatin1String("textArea")
        || name == QLatin1String("tspan");
}

/// How many elements are drawn when each use draws once more what it names. Elements are numbered
/// in the order of the file.
class Uses
{
public:
    void addUse(int element, const QString &target) { m_uses.append({ element, target }); }

    void addTarget(const QString &id, int first, int last)
    {
        if (!id.isEmpty())
            m_targets.insert(id, { first, last });
    }

    int count() const { return m_uses.size(); }

    /// Infinite when something draws itself.
    double drawn(int first, int last)
    {
        double count = last - first + 1;
        auto use = std::lower_bound(m_uses.cbegin(), m_uses.cend(), first,
            [](const Use &each, int element) { return each.element < element; });
        for (; use != m_uses.cend() && use->element <= last; ++use) {
            const QList<Range> targets = m_targets.values(use->target);
            for (const Range &target : targets)
                count += drawnOnce(target);
        }
        return count;
    }

private:
    struct Use
    {
        int element;
        QString target;
    };
    struct Range
    {
        int first;
        int last;
    };

    double drawnOnce(const Range &target)
    {
        const auto known = m_drawn.constFind(target.first);
        if (known != m_drawn.constEnd())
            return known.value();
        m_drawn.insert(target.first, std::numeric_limits<double>::infinity()); // until it is known
        const double count = drawn(target.first, target.last);
        m_drawn.insert(target.first, count);
        return count;
    }

    QVector<Use> m_uses;
    QMultiHash<QString, Range> m_targets;
    QHash<int, double> m_drawn; // by the first element
};

/// Collects, in one walk over the file, what can make reading or rendering explode. Each operation
/// returns false as soon as it is too much.
class Census
{
public:
    bool enter(const QStringRef &name, const QXmlStreamAttributes &attributes)
    {
        const int max_elements = 20000;
        const int max_depth = 256;
        // The renderer looks attributes up by their written name, whatever a prefix is bound to.
        const auto value = [&](const char *key) { return attributes.value(QLatin1String(key)); };
        m_open.append({ m_elements, value("id").toString(), value("xml:id").toString() });
        m_text_depth += isText(name);
        m_style_depth += name == QLatin1String("style");
        return ++m_elements <= max_elements && m_open.size() <= max_depth
            && isHarmlessStyle(value("style")) && addStop(name)
            && addImage(name, value("xlink:href"))
            && addUse(name, value("xlink:href"), value("href"));
    }

    void leave(const QStringRef &name)
    {
        const Open element = m_open.takeLast();
        m_text_depth -= isText(name);
        m_style_depth -= name == QLatin1String("style");
        m_uses.addTarget(element.id, element.number, m_elements - 1);
        m_uses.addTarget(element.xml_id, element.number, m_elements - 1);
    }

    bool addText(const QStringRef &text)
    {
        const int max_letters = 10000;
        m_letters += m_text_depth > 0 ? text.size() : 0;
        if (m_style_depth > 0) {
            const std::optional<int> selectors = selectorsOfHarmlessCss(text.toString());
            m_selectors += selectors.value_or(std::numeric_limits<int>::max());
        }
        return m_letters <= max_letters;
    }

    bool isHarmless()
    {
        const double max_matches = 1e5; // of a selector with an element
        const double max_drawn = 1e5;
        return m_selectors * m_elements <= max_matches
            && m_uses.drawn(0, m_elements - 1) <= max_drawn;
    }

private:
    struct Open
    {
        int number;
        QString id;
        QString xml_id;
    };

    // A gradient sorts each new stop in.
    bool addStop(const QStringRef &name)
    {
        const int max_stops = 4000;
        m_stops += name == QLatin1String("stop");
        return m_stops <= max_stops;
    }

    bool addImage(const QStringRef &name, const QStringRef &link)
    {
        const qint64 max_bytes = 4 * ImageFile::MAX_PIXELS;
        if (name != QLatin1String("image"))
            return true;
        const qint64 bytes = embeddedBytes(link.toString());
        m_image_bytes += bytes;
        return bytes >= 0 && m_image_bytes <= max_bytes;
    }

    bool addUse(const QStringRef &name, const QStringRef &link, const QStringRef &plain_link)
    {
        const int max_uses = 4096;
        if (name == QLatin1String("use"))
            m_uses.addUse(m_elements - 1, (link.size() > 1 ? link : plain_link).mid(1).toString());
        return m_uses.count() <= max_uses;
    }

    int m_elements = 0;
    QVector<Open> m_open; // innermost last
    int m_text_depth = 0;
    int m_style_depth = 0;
    int m_stops = 0;
    int m_letters = 0;
    double m_selectors = 0;
    qint64 m_image_bytes = 0;
    Uses m_uses;
};

bool isHarmlessToken(const QXmlStreamReader &xml, Census *census)
{
    switch (xml.tokenType()) {
    case QXmlStreamReader::StartElement:
        return census->enter(xml.name(), xml.attributes());
    case QXmlStreamReader::EndElement:
        census->leave(xml.name());
        return true;
    case QXmlStreamReader::Characters:
        return census->addText(xml.text());
    case QXmlStreamReader::ProcessingInstruction: // names a file
        return xml.processingInstructionTarget() != QLatin1String("xml-stylesheet");
    default:
        return true;
    }
}

} // namespace

QByteArray svgText(const QByteArray &bytes)
{
    if (!bytes.startsWith("\x1f\x8b"))
        return bytes;
    z_stream stream = {};
    if (inflateInit2(&stream, 16 + MAX_WBITS) != Z_OK) // 16: gzip
        return QByteArray();
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(bytes.constData()));
    stream.avail_in = static_cast<uInt>(bytes.size());
    QByteArray text;
    int result = Z_OK;
    while (result == Z_OK && text.size() <= MAX_TEXT_BYTES) {
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
    if (text.size() > MAX_TEXT_BYTES || !hasFewAttributes(text))
        return false;
    QXmlStreamReader xml(text);
    xml.setNamespaceProcessing(false); // as the renderer reads: a prefix need not be declared
    Census census;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!isHarmlessToken(xml, &census))
            return false;
    }
    return !xml.hasError() && census.isHarmless();
}

} // namespace vexo::hox::qt::ui
