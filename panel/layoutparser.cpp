// SPDX-License-Identifier: MIT
#include "panel/layoutparser_p.h"

#include <QHash>
#include <QLocale>
#include <QRegularExpression>
#include <QTextBoundaryFinder>
#include <QTextCodec>

#include <algorithm>
#include <numeric>
#include <stdexcept>

namespace vexo::hox::qt::panel {

namespace {

const int most_rows = 6;
const int most_variants = 12;
const int longest_character = 8; // UTF-16 units, a letter with marks
const int longest_label = 16;
const double smallest_width = 0.5;
const double widest_row = 20;

const QString lower = KeyboardLayout::lowerLayer();
const QString upper = KeyboardLayout::upperLayer();

// "more" leads on from the symbols, and both are shared by the languages.
bool isLayer(const QString &name)
{
    static const QStringList names{ lower, upper, QStringLiteral("symbols"),
        QStringLiteral("more") };
    return names.contains(name);
}

const QHash<QString, KeyboardKey::Function> &functions()
{
    static const QHash<QString, KeyboardKey::Function> by_name{
        { QStringLiteral("comma"), KeyboardKey::Comma },
        { QStringLiteral("space"), KeyboardKey::Space },
        { QStringLiteral("shift"), KeyboardKey::Shift },
        { QStringLiteral("delete"), KeyboardKey::Delete },
        { QStringLiteral("enter"), KeyboardKey::Enter },
        { QStringLiteral("tab"), KeyboardKey::Tab },
        { QStringLiteral("letters"), KeyboardKey::Letters },
        { QStringLiteral("symbols"), KeyboardKey::Symbols },
        { QStringLiteral("more"), KeyboardKey::More },
        { QStringLiteral("next"), KeyboardKey::Next },
        { QStringLiteral("hide"), KeyboardKey::Hide },
    };
    return by_name;
}

int firstCharacterSize(const QString &text)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    return qMax(0, finder.toNextBoundary());
}

double widthOf(const KeyboardRow &row)
{
    return std::accumulate(row.begin(), row.end(), 0.0,
        [](double sum, const KeyboardKey &key) { return sum + key.width; });
}

bool isPlain(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar each) {
        return each.isPrint() || each.isSurrogate() || each == QLatin1Char('\t');
    });
}

// The capital of sharp s is a letter of its own, not the "SS" of a sentence in capitals.
QString capital(const QLocale &locale, const QString &letter)
{
    if (letter == QString(QChar(0xdf)))
        return QString(QChar(0x1e9e));
    const QString text = locale.toUpper(letter);
    return firstCharacterSize(text) == text.size() ? text : letter;
}

} // namespace

LayoutParser::LayoutParser(const QString &name)
    : m_name(name)
{
}

KeyboardLayout LayoutParser::parse(const QByteArray &utf8)
{
    const QList<QByteArray> lines = utf8.split('\n');
    for (const QByteArray &line : lines) {
        ++m_line;
        QTextCodec::ConverterState state;
        const QString text
            = QTextCodec::codecForName("UTF-8")->toUnicode(line.data(), line.size(), &state);
        if (state.invalidChars > 0 || state.remainingChars > 0)
            refuse(QStringLiteral("this is no UTF-8"));
        readLine(text.trimmed());
    }
    checkWhole();
    addUpper();
    return m_layout;
}

void LayoutParser::readLine(const QString &line)
{
    if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
        return;
    if (!isPlain(line))
        refuse(QStringLiteral("a character that cannot be shown"));
    static const QRegularExpression blank(QStringLiteral("\\s"));
    const int end = line.indexOf(blank);
    const QString word = line.left(end);
    const QString rest = end < 0 ? QString() : line.mid(end).trimmed();
    if (word == QLatin1String("row"))
        readRow(rest);
    else if (word == QLatin1String("layer"))
        readLayer(rest);
    else if (word == QLatin1String("language"))
        readLanguage(rest);
    else if (word == QLatin1String("letters"))
        readLetters(rest);
    else
        refuse(QStringLiteral("\"%1\" is none of language, letters, layer, row")
                   .arg(word.left(longest_label)));
}

void LayoutParser::readLanguage(const QString &rest)
{
    static const QRegularExpression form(QStringLiteral("\\A([a-zA-Z_-]{2,16})\\s+(.+)\\z"));
    const QRegularExpressionMatch match = form.match(rest);
    if (!match.hasMatch() || match.captured(2).size() > 2 * longest_label)
        refuse(QStringLiteral("expected a code and a name, as in \"language de Deutsch\""));
    m_layout.code = match.captured(1);
    m_layout.name = match.captured(2);
}

void LayoutParser::readLetters(const QString &rest)
{
    if (rest.isEmpty() || rest.size() > longest_label)
        refuse(QStringLiteral("expected 1 to %1 characters").arg(longest_label));
    m_layout.letters = rest;
}

void LayoutParser::readLayer(const QString &rest)
{
    if (!isLayer(rest))
        refuse(QStringLiteral("a layer is one of lower, upper, symbols, more"));
    if (m_layout.layers.contains(rest))
        refuse(QStringLiteral("a second layer %1").arg(rest));
    m_layer = &m_layout.layers[rest];
}

void LayoutParser::readRow(const QString &rest)
{
    if (!m_layer)
        refuse(QStringLiteral("a row before the first layer"));
    if (int(m_layer->size()) == most_rows)
        refuse(QStringLiteral("more than %1 rows").arg(most_rows));
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    const QStringList words = rest.split(blanks, Qt::SkipEmptyParts);
    KeyboardRow row;
    for (const QString &word : words)
        row.push_back(readKey(word));
    check(row);
    m_layer->push_back(row);
}

KeyboardKey LayoutParser::readKey(const QString &word) const
{
    KeyboardKey key;
    QString rest = word.mid(readCap(word, &key));
    readWidth(&rest, &key);
    if (!rest.isEmpty())
        readVariants(rest, &key);
    return key;
}

int LayoutParser::readCap(const QString &word, KeyboardKey *key) const
{
    if (!word.startsWith(QLatin1Char('{')) || word.size() == 1) {
        key->text = word.left(firstCharacterSize(word));
        if (key->text.size() > longest_character)
            refuse(QStringLiteral("a letter with too many marks"));
        return key->text.size();
    }
    const int end = word.indexOf(QLatin1Char('}'));
    const auto function = functions().constFind(word.mid(1, end - 1));
    if (end < 0 || function == functions().constEnd())
        refuse(QStringLiteral("there is no key %1").arg(word.left(longest_label)));
    key->function = *function;
    return end + 1;
}

void LayoutParser::readWidth(QString *rest, KeyboardKey *key) const
{
    static const QRegularExpression form(QStringLiteral("\\*(\\d{0,3}(?:\\.\\d{1,3})?)\\z"));
    const QRegularExpressionMatch match = form.match(*rest);
    if (!match.hasMatch())
        return;
    key->fills = match.capturedLength(1) == 0;
    if (!key->fills)
        key->width = match.captured(1).toDouble();
    if (key->width < smallest_width || key->width > widest_row)
        refuse(QStringLiteral("a key is %1 to %2 wide").arg(smallest_width).arg(widest_row));
    rest->truncate(match.capturedStart());
}

void LayoutParser::readVariants(const QString &rest, KeyboardKey *key) const
{
    if (key->function != KeyboardKey::Character || rest.size() == 1
        || !rest.startsWith(QLatin1Char(':')))
        refuse(
            QStringLiteral("expected a blank after the key, \":\" and its variants, or \"*\" and "
                           "its width, before \"%1\"")
                .arg(rest.left(longest_label)));
    QString left = rest.mid(1);
    while (!left.isEmpty()) {
        const int size = firstCharacterSize(left);
        if (size > longest_character || key->variants.size() == most_variants)
            refuse(QStringLiteral("more than %1 variants, or marks").arg(most_variants));
        key->variants.append(left.left(size));
        left.remove(0, size);
    }
}

void LayoutParser::check(const KeyboardRow &row) const
{
    if (row.empty())
        refuse(QStringLiteral("a row without keys"));
    if (widthOf(row) > widest_row)
        refuse(QStringLiteral("a row wider than %1 letters").arg(widest_row));
    const auto fills = [](const KeyboardKey &key) { return key.fills; };
    if (std::count_if(row.begin(), row.end(), fills) > 1)
        refuse(QStringLiteral("two keys that fill the row"));
}

void LayoutParser::checkWhole()
{
    for (auto layer = m_layout.layers.cbegin(); layer != m_layout.layers.cend(); ++layer) {
        if (layer.value().empty())
            refuse(QStringLiteral("the layer %1 has no row").arg(layer.key()));
    }
    if (m_layout.layers.isEmpty() || (!m_layout.code.isEmpty() && !m_layout.layers.contains(lower)))
        refuse(QStringLiteral("there is no layer lower"));
}

void LayoutParser::addUpper()
{
    if (m_layout.layers.contains(upper) || !m_layout.layers.contains(lower))
        return;
    const QLocale locale(m_layout.code);
    KeyboardRows rows = m_layout.layers.value(lower);
    for (KeyboardRow &row : rows) {
        for (KeyboardKey &key : row) {
            key.text = capital(locale, key.text);
            for (QString &variant : key.variants)
                variant = capital(locale, variant);
        }
    }
    m_layout.layers.insert(upper, rows);
}

void LayoutParser::refuse(const QString &why) const
{
    throw std::runtime_error(
        QStringLiteral("%1:%2: %3").arg(m_name).arg(m_line).arg(why).toStdString());
}

} // namespace vexo::hox::qt::panel
