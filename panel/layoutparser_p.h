#pragma once
// SPDX-License-Identifier: MIT

#include "panel/keyboardlayout_p.h"

namespace vexo::hox::qt::panel {

/// Reads the text of a KeyboardLayout, whose comment describes it. Each parser reads one text.
class LayoutParser
{
public:
    /// \a name stands for the text in errors.
    explicit LayoutParser(const QString &name);

    /// Throws std::runtime_error "NAME:LINE: why".
    KeyboardLayout parse(const QByteArray &utf8);

private:
    void readLine(const QString &line);
    void readLanguage(const QString &rest);
    void readLetters(const QString &rest);
    void readLayer(const QString &rest);
    void readRow(const QString &rest);
    KeyboardKey readKey(const QString &word) const;
    int readCap(const QString &word, KeyboardKey *key) const;
    void readWidth(QString *rest, KeyboardKey *key) const;
    void readVariants(const QString &rest, KeyboardKey *key) const;
    void check(const KeyboardRow &row) const;
    void checkWhole();
    void addUpper();
    [[noreturn]] void refuse(const QString &why) const;

    const QString m_name;
    int m_line = 0;
    KeyboardRows *m_layer = nullptr; // to which rows are added
    KeyboardLayout m_layout;
};

} // namespace vexo::hox::qt::panel
