#pragma once
// SPDX-License-Identifier: MIT

#include "panel/keyboardlayout_p.h"

namespace vexo::hox::qt::panel {

/// The languages that a keyboard offers, and the one that it shows. Without any it is English.
class KeyboardLanguages
{
public:
    QStringList codes() const;
    /// Leaves out what is neither compiled in nor known here, and chooses the first.
    void offer(const QStringList &codes);
    /// After the others, or in place of the same language.
    void add(const KeyboardLayout &layout);

    /// The one that is chosen.
    const QString &code() const { return m_code; }
    /// False if it is chosen already, or not offered.
    bool choose(const QString &code);
    /// What the field's hints let choose; chosen is possibly none of them.
    std::vector<KeyboardLayout> usable(Qt::InputMethodHints hints) const;
    /// The chosen one, or else the first usable one.
    KeyboardLayout shown(Qt::InputMethodHints hints) const;
    /// The code that lies \a step behind that of the shown one, in a circle.
    QString next(Qt::InputMethodHints hints, int step) const;

private:
    std::vector<KeyboardLayout> m_layouts;
    QString m_code;
};

} // namespace vexo::hox::qt::panel
