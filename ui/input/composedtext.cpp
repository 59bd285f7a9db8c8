// SPDX-License-Identifier: MIT
#include "ui/input/composedtext_p.h"

#include <QInputMethodEvent>

namespace vexo::hox::qt::ui {

void ComposedText::take(const QInputMethodEvent &event, int cursor)
{
    m_text = event.preeditString();
    m_start = cursor;
    m_formats.clear();
    const QList<QInputMethodEvent::Attribute> attributes = event.attributes();
    for (const QInputMethodEvent::Attribute &attribute : attributes) {
        const QTextFormat format = qvariant_cast<QTextFormat>(attribute.value);
        if (attribute.type == QInputMethodEvent::TextFormat && format.isCharFormat())
            m_formats += { cursor + attribute.start, attribute.length, format.toCharFormat() };
    }
}

QString ComposedText::within(const QString &text) const
{
    if (m_text.isEmpty())
        return text;
    QString whole = text;
    return whole.insert(qMin(m_start, text.size()), m_text);
}

} // namespace vexo::hox::qt::ui
