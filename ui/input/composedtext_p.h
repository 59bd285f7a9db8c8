#pragma once
// SPDX-License-Identifier: MIT

#include <QString>
#include <QTextLayout>
#include <QVector>

class QInputMethodEvent;

namespace vexo::hox::qt::ui {

/// What an input method composes in a text and has not yet committed. The toolkit keeps it beside
/// the text of a line edit.
class ComposedText
{
public:
    /// \a cursor is where the text of the field goes on after \a event.
    void take(const QInputMethodEvent &event, int cursor);
    /// \a text with what is composed in it.
    QString within(const QString &text) const;
    /// How the input method wants its part of that drawn, such as underlined.
    const QVector<QTextLayout::FormatRange> &formats() const { return m_formats; }

private:
    QString m_text;
    int m_start = 0;
    QVector<QTextLayout::FormatRange> m_formats;
};

} // namespace vexo::hox::qt::ui
