#pragma once
// SPDX-License-Identifier: MIT

#include <Finger>
#include <OnScreenKeyboard>
#include <VexoKeyboardButton>

#include <QApplication>
#include <QTest>

/// The visible key of \a keyboard, or of any widget, that bears a text or an accessible name.
inline vexo::hox::qt::ui::VexoKeyboardButton *keyOf(const QWidget &keyboard, const QString &label)
{
    const auto keys = keyboard.findChildren<vexo::hox::qt::ui::VexoKeyboardButton *>();
    for (auto *key : keys) {
        if (key->isVisible() && (key->accessibleName() == label || key->text() == label))
            return key;
    }
    return nullptr;
}

/// Types with a finger on the keys, as a person does who looks for the next letter.
class Typist
{
public:
    using Keyboard = vexo::hox::qt::panel::OnScreenKeyboard;

    Typist(const Keyboard &keyboard, vexo::hox::qt::uitest::Finger *finger)
        : m_keyboard(keyboard)
        , m_finger(finger)
    {
    }

    void tap(const QString &label)
    {
        auto *key = keyOf(m_keyboard, label);
        QVERIFY2(key, qPrintable(label));
        const bool is_covered = QApplication::activePopupWidget(); // by one that lets through
        m_finger->tap(key);
        if (!is_covered)
            QVERIFY2(m_finger->lastProblem().isEmpty(), qPrintable(m_finger->lastProblem()));
    }

    void tapAll(const QString &labels)
    {
        const QStringList list = labels.split(QLatin1Char(' '));
        for (const QString &label : list)
            tap(label);
    }

    void type(const QString &text)
    {
        for (const QChar letter : text)
            type(letter);
    }

    void type(QChar letter)
    {
        static const QHash<QChar, QString> names{ { QLatin1Char(' '), QStringLiteral("Space") },
            { QLatin1Char('\n'), QStringLiteral("Enter") },
            { QLatin1Char('\b'), QStringLiteral("Delete") } };
        if (names.contains(letter))
            return tap(names.value(letter));
        for (int i = 0; i < 4 && !keyOf(m_keyboard, letter); ++i)
            tap(wayTo(letter));
        tap(letter);
    }

private:
    QString wayTo(QChar letter) const
    {
        if (letter.isLetter() && keyOf(m_keyboard, QStringLiteral("ABC")))
            return QStringLiteral("ABC");
        if (letter.isLetter())
            return QStringLiteral("Shift");
        const QString more = QStringLiteral("#+=");
        return keyOf(m_keyboard, more) ? more : QStringLiteral("123");
    }

    const Keyboard &m_keyboard;
    vexo::hox::qt::uitest::Finger *m_finger;
};
