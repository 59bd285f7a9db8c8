// SPDX-License-Identifier: MIT
#include "panel/mmsheetreader_p.h"

#include <QRegularExpression>

#include <cstring>

namespace vexo::hox::qt::panel {

namespace {

[[noreturn]] void complain(const QString &text)
{
    throw SheetFault{ text };
}

bool isUnit(const QString &word)
{
    return word == QLatin1String("mm") || word == QLatin1String("pt")
        || word == QLatin1String("px");
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
        const QString selector = readWords("{};").join(QLatin1Char(' '));
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
    }
}

SheetRule MmSheetReader::readRule(const QString &selector)
{
    const int first_line = m_part_line;
    SheetRule rule{ selector, {} };
    for (;;) {
        const QStringList property = readWords("{}:;");
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
            complain(QStringLiteral("'%1' has no value").arg(property.join(QLatin1Char(' '))));
        if (stop == QLatin1Char('}'))
            return rule;
    }
}

SheetDeclaration MmSheetReader::readValue(const QStringList &property)
{
    static const QRegularExpression form(QStringLiteral(R"(\A[-\w]+\z)"));
    const QString name = property.join(QLatin1Char(' '));
    if (!form.match(name).hasMatch())
        complain(QStringLiteral("'%1' is no property").arg(name));
    const int first_line = m_part_line;
    const QStringList words = readWords("{};");
    m_part_line = first_line;
    if (words.isEmpty())
        complain(QStringLiteral("'%1' has no value").arg(name));
    SheetDeclaration declaration{ name, {} };
    for (const QString &word : words) {
        if (isUnit(word))
            complain(QStringLiteral("'%1' stands apart from its number").arg(word));
        declaration.words += MmLength::read(word);
    }
    return declaration;
}

QStringList MmSheetReader::readWords(const char *stops)
{
    QStringList words{ QString() };
    m_depth = 0;
    m_part_line = m_line;
    // A brace stops in parentheses, too: one of the two is missing its end then.
    while (m_pos < m_text.size() && !isAtOneOf(m_depth > 0 ? "{}" : stops)) {
        readPiece(&words);
        if (words.first().isEmpty())
            m_part_line = m_line;
    }
    if (m_depth > 0)
        complain(QStringLiteral("a ( without its )"));
    words.removeAll(QString());
    return words;
}

void MmSheetReader::readPiece(QStringList *words)
{
    const bool is_comment = isAt("/*");
    const bool is_blank = is_comment || m_text.at(m_pos).isSpace();
    if (is_blank && m_depth == 0 && !words->last().isEmpty())
        *words += QString();
    if (is_comment)
        skipComment();
    else if (is_blank && m_depth == 0)
        skipBlank();
    else if (isAtOneOf("\"'"))
        readQuotation(&words->last());
    else if (isAt("url("))
        readUrl(&words->last());
    else
        readCharacter(&words->last());
}

void MmSheetReader::readQuotation(QString *word)
{
    const int begin = m_pos;
    const QChar end = m_text.at(m_pos++);
    while (m_pos < m_text.size() && m_text.at(m_pos) != end && !isAtOneOf("\n"))
        m_pos += isAtOneOf("\\") ? 2 : 1;
    if (m_pos >= m_text.size() || m_text.at(m_pos) != end) {
        m_part_line = m_line;
        complain(QStringLiteral("a quotation that does not end on its line"));
    }
    ++m_pos;
    *word += m_text.midRef(begin, m_pos - begin);
}

void MmSheetReader::readUrl(QString *word)
{
    const int head = 4;
    *word += m_text.midRef(m_pos, head);
    m_pos += head;
    while (m_pos < m_text.size() && !isAtOneOf(")\n")) {
        if (isAtOneOf("\"'"))
            readQuotation(word);
        else
            *word += m_text.at(m_pos++);
    }
    if (m_pos >= m_text.size() || isAtOneOf("\n")) {
        m_part_line = m_line;
        complain(QStringLiteral("a url( that does not end on its line"));
    }
    *word += m_text.at(m_pos++);
}

void MmSheetReader::readCharacter(QString *word)
{
    m_line += isAtOneOf("\n");
    m_depth += isAtOneOf("(");
    m_depth -= isAtOneOf(")");
    if (m_depth < 0)
        complain(QStringLiteral("a ) without its ("));
    const int length = isAtOneOf("\\") ? 2 : 1;
    *word += m_text.midRef(m_pos, length);
    m_pos += length;
}

void MmSheetReader::skipBlank()
{
    m_line += isAtOneOf("\n");
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

bool MmSheetReader::isAt(const char *text) const
{
    return m_text.midRef(m_pos).startsWith(QLatin1String(text), Qt::CaseInsensitive);
}

bool MmSheetReader::isAtOneOf(const char *characters) const
{
    const char c = m_text.at(m_pos).toLatin1();
    return c != '\0' && std::strchr(characters, c);
}

QChar MmSheetReader::takeStop()
{
    return m_pos < m_text.size() ? m_text.at(m_pos++) : QChar();
}

} // namespace vexo::hox::qt::panel
