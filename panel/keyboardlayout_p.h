#pragma once
// SPDX-License-Identifier: MIT

#include <QMap>
#include <QStringList>

#include <vector>

namespace vexo::hox::qt::panel {

/// One key of a layout.
struct KeyboardKey
{
    enum Function {
        Character, ///< types its text
        Comma, ///< types a comma, or what an address needs more often
        Space,
        Shift,
        Delete,
        Enter,
        Tab,
        Letters, ///< leads to the layer "lower"
        Symbols, ///< leads to the layer of that name, as does the next one
        More,
        Next, ///< the next language
        Hide
    };

    Function function = Character;
    QString text; ///< of a character
    QStringList variants; ///< of a character, offered while it is held
    double width = 1; ///< as a multiple of a letter's
    bool fills = false; ///< takes what its row leaves, beside its width
};

using KeyboardRow = std::vector<KeyboardKey>;
using KeyboardRows = std::vector<KeyboardRow>;

/// What lies where on a keyboard, as a small text file tells it:
///
///     # A comment. Words are divided by blanks.
///     language de Deutsch      its code and the name on the space bar
///     letters ABC              what leads back from the symbols, default ABC
///     layer lower              lower, upper, symbols or more, with its rows below
///     row q w e:éè z*1.5       a key and its width, the held e offers é and è
///     row {shift} {space}* .   functions; the star without a number takes the rest of the row
///
/// A layer "upper" that is missing is made of "lower". Files are small and UTF-8: at most 64 KB, 6
/// rows of a layer, 20 widths of a row and 12 variants of a key.
struct KeyboardLayout
{
    QString code; ///< of the language; empty for symbols and digits
    QString name; ///< of the language, in that language
    QString letters = QStringLiteral("ABC"); ///< on the key Letters
    QMap<QString, KeyboardRows> layers;

    /// Throws std::runtime_error "FILE: why" or "FILE:LINE: why".
    static KeyboardLayout fromFile(const QString &file);
    /// One for a language, which tells its code.
    static KeyboardLayout languageFromFile(const QString &file);
    /// \a name stands for the file in errors, see fromFile().
    static KeyboardLayout fromText(const QByteArray &utf8, const QString &name);
    /// One of those that are compiled in: a language by its code, or "symbols", "pin", "digits",
    /// "phone". Read once.
    static const KeyboardLayout &builtIn(const QString &name);
    static const QStringList &builtInLanguages();
    static QString lowerLayer() { return QStringLiteral("lower"); }
    static QString upperLayer() { return QStringLiteral("upper"); }
};

} // namespace vexo::hox::qt::panel
