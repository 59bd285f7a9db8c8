#pragma once
// SPDX-License-Identifier: MIT

#include <QString>

namespace vexo::hox::qt::uitest {

/// \a text as a translation might be, about \a factor times as long: "Settings" as "Séééttíííngs".
/// It can still be read. Accents show what is cut at the top; letters are doubled inside of words,
/// since a translation has longer words, and what has no vowels is filled up. A text without two
/// letters in a row, such as a number or a key, is the same in each language. Markup and
/// placeholders stay.
QString pseudoText(const QString &text, double factor);

} // namespace vexo::hox::qt::uitest
