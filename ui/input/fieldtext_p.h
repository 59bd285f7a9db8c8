#pragma once
// SPDX-License-Identifier: MIT

#include "ui/painting/textrun_p.h"

class QInputMethodEvent;

namespace vexo::hox::qt::ui {

/// What a field shows in letters, laid out: its text, in it what an input method composes and has
/// not yet committed (the toolkit keeps that beside the text), and what is left of the placeholder.
class FieldText
{
public:
    /// What is left of \a placeholder beside \a typed characters of text; \a spaced puts a blank
    /// between any two characters.
    static QString rest(const QString &placeholder, int typed, bool spaced);

    void setPlaceholder(const QString &placeholder, bool spaced);
    /// \a cursor is where the text of the field goes on after \a event.
    void compose(const QInputMethodEvent &event, int cursor);
    void layOut(const QString &text, const QFont &font);
    /// Lays out \a text, in which nothing is composed; the placeholder stays as it was.
    void layOutAlone(const QString &text, const QFont &font) { m_run.set(text, font); }

    const TextRun &run() const { return m_run; } ///< of the text
    const TextRun &placeholder() const { return m_placeholder_run; } ///< of what is left of it
    bool hasPlaceholder() const { return m_typed < m_placeholder.size(); }

private:
    QString m_composed;
    int m_composed_at = 0;
    TextRun::Formats m_formats; // as the input method wants its part drawn, such as underlined
    TextRun m_run;
    QString m_placeholder;
    QString m_rest;
    bool m_is_spaced = false;
    int m_typed = -1; // the rest is that beside a text of this length; -1: unknown
    TextRun m_placeholder_run;
};

} // namespace vexo::hox::qt::ui
