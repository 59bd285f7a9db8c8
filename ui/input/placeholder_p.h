#pragma once
// SPDX-License-Identifier: MIT

#include <QString>

namespace vexo::hox::qt::ui {

/// What is left of a placeholder beside \a typed characters of text; \a spaced puts a blank between
/// any two characters.
inline QString placeholderRest(const QString &placeholder, int typed, bool spaced)
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

} // namespace vexo::hox::qt::ui
