// SPDX-License-Identifier: MIT
#include "ui/files/cssguard_p.h"

namespace vexo::hox::qt::ui {

namespace {

bool isHexDigit(QChar c)
{
    return (c >= QLatin1Char('0') && c <= QLatin1Char('9'))
        || (c.toLower() >= QLatin1Char('a') && c.toLower() <= QLatin1Char('f'));
}

/// One walk over the text. The toolkit copies a rule for each of its selectors that matches, with
/// all its selectors and declarations, and looks for the end of the rule at each faulty
/// declaration; so the cost of a rule grows with the squares.
class CssCount
{
public:
    explicit CssCount(const QString &text)
        : m_text(text)
    {
    }

    bool isHarmless()
    {
        const qint64 max_cost = 30000; // a rule copied for a selector is 1, about 3 us
        for (m_pos = 0; m_pos < m_text.size(); ++m_pos) {
            if (!step(m_text.at(m_pos)) || m_cost > max_cost)
                return false;
        }
        endRule();
        return m_cost <= max_cost;
    }

    int selectors() const { return m_all_selectors; }

private:
    // False where nothing more can be told.
    bool step(QChar c)
    {
        switch (c.unicode()) {
        case '"':
        case '\'':
            return skipString(c);
        case '/':
            return skipComment();
        case '\\':
            return skipEscape();
        case ',':
            ++m_selectors;
            break;
        case ';':
            ++m_declarations;
            break;
        case '}':
            endRule();
            break;
        default:
            break;
        }
        return true;
    }

    void endRule()
    {
        const qint64 rescan = 1000; // characters looked through in the time of one copy
        m_cost += qint64(m_selectors) * (m_selectors + m_declarations)
            + qint64(m_declarations) * (m_pos - m_rule_pos) / rescan;
        m_all_selectors += m_selectors;
        m_selectors = 1;
        m_declarations = 1;
        m_rule_pos = m_pos;
    }

    bool skipString(QChar quote)
    {
        for (++m_pos; m_pos < m_text.size(); ++m_pos) {
            const QChar c = m_text.at(m_pos);
            if (c == quote)
                return true;
            if ((c.unicode() < ' ' && c != QLatin1Char('\t'))
                || (c == QLatin1Char('\\') && !skipEscape()))
                return false;
        }
        return false;
    }

    bool skipComment()
    {
        if (!m_text.midRef(m_pos, 2).endsWith(QLatin1Char('*')))
            return true;
        const int end = m_text.indexOf(QLatin1String("*/"), m_pos + 2);
        m_pos = end + 1;
        return end >= 0;
    }

    // The toolkit puts a character in place of its number before it looks for anything else.
    bool skipEscape()
    {
        const int max_digits = 6;
        int digits = 0;
        while (digits < max_digits && m_pos + digits + 1 < m_text.size()
            && isHexDigit(m_text.at(m_pos + digits + 1)))
            ++digits;
        const uint code = m_text.midRef(m_pos + 1, digits).toUInt(nullptr, 16);
        m_pos += qMax(1, digits);
        return digits == 0 || code >= 0x80 || QChar(code).isLetterOrNumber();
    }

    const QString &m_text;
    int m_pos = 0;
    int m_rule_pos = 0;
    int m_selectors = 1; // of this rule
    int m_declarations = 1;
    int m_all_selectors = 0;
    qint64 m_cost = 0;
};

} // namespace

std::optional<int> selectorsOfHarmlessCss(const QString &text)
{
    const int max_size = 1 << 17;
    CssCount count(text);
    if (text.size() > max_size || !count.isHarmless())
        return std::nullopt;
    return count.selectors();
}

} // namespace vexo::hox::qt::ui
