// SPDX-License-Identifier: MIT
#include "ui/input/fieldtext_p.h"

#include <QInputMethodEvent>

namespace vexo::hox::qt::ui {

QString FieldText::rest(const QString &placeholder, int typed, bool spaced)
{
    QString rest = placeholder.mid(typed);
    if (typed > 0 && !rest.isEmpty() && rest.at(0).isLowSurrogate())
        rest.remove(0, 1); // half a character is none
    if (!spaced)
        return rest;
    QString line;
    line.reserve(2 * rest.size());
    for (const QChar c : qAsConst(rest)) {
        if (!line.isEmpty())
            line += QLatin1Char(' ');
        line += c;
    }
    return line;
}

void FieldText::setPlaceholder(const QString &placeholder, bool spaced)
{
    m_placeholder = placeholder;
    m_is_spaced = spaced;
    m_typed = -1;
}

void FieldText::compose(const QInputMethodEvent &event, int cursor)
{
    m_composed = event.preeditString();
    m_composed_at = cursor;
    m_formats.clear();
    for (const QInputMethodEvent::Attribute &attribute : event.attributes()) {
        const QTextFormat format = qvariant_cast<QTextFormat>(attribute.value);
        if (attribute.type == QInputMethodEvent::TextFormat && format.isCharFormat())
            m_formats += { cursor + attribute.start, attribute.length, format.toCharFormat() };
    }
}

void FieldText::layOut(const QString &text, const QFont &font)
{
    QString whole = text;
    if (!m_composed.isEmpty())
        whole.insert(qMin(m_composed_at, text.size()), m_composed);
    m_run.set(whole, font, m_formats);
    if (whole.size() != m_typed) {
        m_typed = whole.size();
        m_rest = rest(m_placeholder, m_typed, m_is_spaced);
    }
    m_placeholder_run.set(m_rest, font);
}

} // namespace vexo::hox::qt::ui
