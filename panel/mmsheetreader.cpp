// SPDX-License-Identifier: MIT
#include "panel/mmsheetreader_p.h"

#include <algorithm>
#include <array>

namespace vexo::hox::qt::panel {

namespace {

/// What a character is to the reader; all others are 0.
enum Kind { Brace = 1, Colon = 2, Semicolon = 4, Blank = 8, Quote = 16, Other = 32 };

constexpr std::array<char, 128> kindsOfAscii()
{
    std::array<char, 128> kinds{};
    for (const char c : { '{', '}' })
        kinds[std::size_t(c)] = Brace;
    for (const char c : { ' ', '\t', '\n', '\v', '\f', '\r' })
        kinds[std::size_t(c)] = Blank;
    for (const char c : { '"', '\'' })
        kinds[std::size_t(c)] = Quote;
    for (const char c : { '/', '\\', '(', ')' })
        kinds[std::size_t(c)] = Other;
    kinds[':'] = Colon;
    kinds[';'] = Semicolon;
    return kinds;
}

[[noreturn]] void complain(const QString &text)
{
    throw SheetFault{ text };
}

bool isUnit(const QString &word)
{
    return word == QLatin1String("mm") || word == QLatin1String("pt")
        || word == QLatin1String("px");
}

bool isName(const QString &word)
{
    return std::all_of(word.begin(), word.end(), [](QChar c) {
        const bool is_ascii = c.unicode() < 128;
        return (is_ascii && c.isLetterOrNumber()) || c == QLatin1Char('-') || c == QLatin1Char('_');
    });
}

QString joined(const QStringList &words)
{
    return words.size() == 1 ? words.constFirst() : words.join(QLatin1Char(' '));
}

} // namespace

MmSheetReader::MmSheetReader(const QString &text)
    : m_text(text)
{
    try {
        readRules();
    } catch (const SheetFault &fault) {
        m_rules.clear();
        m_fault = QStringLiteral("%1: %2").arg(m_part_line).arg(fault.text);
    }
}

void MmSheetReader::readRules()
{
    for (;;) {
        const QString selector = joined(readWords(Brace | Semicolon));
        const QChar stop = takeStop();
        if (stop.isNull() && selector.isEmpty())
            return;
        if (stop == QLatin1Char('}'))
            complain(QStringLiteral("a } without its {"));
        if (stop != QLatin1Char('{'))
            complain(QStringLiteral("'%1' has no { and belongs to no rule").arg(selector));
        if (selector.isEmpty())
            complain(QStringLiteral("a { without a selector"));
        if (selector.startsWith(QLatin1Char('@')))
            complain(QStringLiteral("'%1': rules with @ are not known").arg(selector));
        m_rules += readRule(selector);
        countCost(m_rules.constLast());
    }
}

SheetRule MmSheetReader::readRule(const QString &selector)
{
    const int first_line = m_part_line;
    SheetRule rule{ selector, {} };
    for (;;) {
        const QStringList property = readWords(Brace | Colon | Semicolon);
        QChar stop = takeStop();
        const bool has_value = stop == QLatin1Char(':');
        if (has_value) {
            rule.declarations += readValue(property);
            stop = takeStop();
        }
        if (stop == QLatin1Char('{'))
            complain(QStringLiteral("a { inside the rule of '%1'").arg(selector));
        if (stop.isNull()) {
            m_part_line = first_line;
            complain(QStringLiteral("the rule of '%1' has no }").arg(selector));
        }
        if (!has_value && !property.isEmpty())
            complain(QStringLiteral("'%1' has no value").arg(joined(property)));
        if (stop == QLatin1Char('}'))
            return rule;
    }
}

SheetDeclaration MmSheetReader::readValue(const QStringList &property)
{
    const QString name = joined(property);
    if (name.isEmpty() || !isName(name))
        complain(QStringLiteral("'%1' is no property").arg(name));
    const int first_line = m_part_line;
    const QStringList words = readWords(Brace | Semicolon);
    m_part_line = first_line;
    if (words.isEmpty())
        complain(QStringLiteral("'%1' has no value").arg(name));
    SheetDeclaration declaration{ name, name.toLower(), {} };
    declaration.words.reserve(words.size());
    for (const QString &word : words) {
        if (isUnit(word))
            complain(QStringLiteral("'%1' stands apart from its number").arg(word));
        declaration.words += MmLength::read(word);
    }
    return declaration;
}

// The toolkit copies a rule with all its selectors and declarations for each selector that matches.
// An escape may stand for a comma.
void MmSheetReader::countCost(const SheetRule &rule)
{
    const qint64 most_copies = 30000; // about 3 us each
    const qint64 selectors
        = 1 + rule.selector.count(QLatin1Char(',')) + rule.selector.count(QLatin1Char('\\'));
    m_cost += selectors * (selectors + rule.declarations.size());
    if (m_cost > most_copies)
        complain(QStringLiteral("too many selectors and declarations for the toolkit"));
}

QStringList MmSheetReader::readWords(int stops)
{
    QStringList words;
    m_depth = 0;
    skipBlanks();
    m_part_line = m_line;
    while (m_pos < m_text.size() && !(kindAt(m_pos) & stops)) {
        words += readWord(stops);
        skipBlanks();
    }
    return words;
}

// A comment ends it, but not in parentheses. A brace stops in these, too: one of the two is missing
// its end then.
QString MmSheetReader::readWord(int stops)
{
    QString word;
    int begin = m_pos;
    while (m_pos < m_text.size() && !(kindAt(m_pos) & (m_depth > 0 ? int(Brace) : stops | Blank))) {
        if (isAtComment()) {
            if (m_depth == 0)
                break;
            word += m_text.midRef(begin, m_pos - begin);
            skipComment();
            begin = m_pos;
        } else {
            skipPiece();
        }
    }
    if (m_depth > 0)
        complain(QStringLiteral("a ( without its )"));
    word += m_text.midRef(begin, m_pos - begin);
    return word;
}

void MmSheetReader::skipPiece()
{
    switch (m_text.at(m_pos).unicode()) {
    case '"':
    case '\'':
        return skipQuotation();
    case '(':
    case ')':
        return skipParenthesis();
    case '\\':
        m_pos += 2;
        break;
    case '\n':
        ++m_line;
        Q_FALLTHROUGH();
    default:
        ++m_pos;
        while (m_pos < m_text.size() && kindAt(m_pos) == 0)
            ++m_pos;
    }
}

void MmSheetReader::skipBlanks()
{
    while (m_pos < m_text.size()) {
        if (isAtComment()) {
            skipComment();
        } else if (kindAt(m_pos) == Blank) {
            m_line += m_text.at(m_pos) == QLatin1Char('\n');
            ++m_pos;
        } else {
            return;
        }
    }
}

void MmSheetReader::skipQuotation()
{
    const QChar end = m_text.at(m_pos++);
    const QLatin1Char line_end('\n');
    while (m_pos < m_text.size() && m_text.at(m_pos) != end && m_text.at(m_pos) != line_end)
        m_pos += m_text.at(m_pos) == QLatin1Char('\\') ? 2 : 1;
    if (m_pos >= m_text.size() || m_text.at(m_pos) != end) {
        m_part_line = m_line;
        complain(QStringLiteral("a quotation that does not end on its line"));
    }
    ++m_pos;
}

void MmSheetReader::skipParenthesis()
{
    const bool is_open = m_text.at(m_pos) == QLatin1Char('(');
    if (is_open && m_text.leftRef(m_pos).endsWith(QLatin1String("url"), Qt::CaseInsensitive))
        return skipUrl();
    m_depth += is_open ? 1 : -1;
    if (m_depth < 0)
        complain(QStringLiteral("a ) without its ("));
    ++m_pos;
}

void MmSheetReader::skipUrl()
{
    const QLatin1Char end(')');
    const QLatin1Char line_end('\n');
    while (m_pos < m_text.size() && m_text.at(m_pos) != end && m_text.at(m_pos) != line_end) {
        if (kindAt(m_pos) == Quote)
            skipQuotation();
        else
            ++m_pos;
    }
    if (m_pos >= m_text.size() || m_text.at(m_pos) == line_end) {
        m_part_line = m_line;
        complain(QStringLiteral("a url( that does not end on its line"));
    }
    ++m_pos;
}

void MmSheetReader::skipComment()
{
    const int end = m_text.indexOf(QLatin1String("*/"), m_pos + 2);
    if (end < 0) {
        m_part_line = m_line;
        complain(QStringLiteral("a comment without its */"));
    }
    m_line += m_text.midRef(m_pos, end - m_pos).count(QLatin1Char('\n'));
    m_pos = end + 2;
}

bool MmSheetReader::isAtComment() const
{
    return m_text.at(m_pos) == QLatin1Char('/') && m_pos + 1 < m_text.size()
        && m_text.at(m_pos + 1) == QLatin1Char('*');
}

int MmSheetReader::kindAt(int pos) const
{
    static constexpr std::array<char, 128> kinds = kindsOfAscii();
    const QChar c = m_text.at(pos);
    if (c.unicode() < kinds.size())
        return kinds[c.unicode()];
    return c.isSpace() ? Blank : 0;
}

QChar MmSheetReader::takeStop()
{
    return m_pos < m_text.size() ? m_text.at(m_pos++) : QChar();
}

} // namespace vexo::hox::qt::panel
