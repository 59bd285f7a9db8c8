#pragma once
// SPDX-License-Identifier: MIT

#include "panel/plugin/contentshift.h"

#include <QObject>
#include <QRect>

namespace vexo::hox::qt::panel {
class OnScreenKeyboard;
}

/// A keyboard in the lower part of the window that has the focus, as a child of it. The window's
/// content moves up as far as the field needs. A window that is too small for both, a dialog say,
/// grows until the keyboard goes.
class KeyboardDock : public QObject
{
    Q_OBJECT

public:
    ~KeyboardDock() override;

    /// Comes up for \a field, or goes on to it.
    void open(QWidget *field);
    void close();
    bool isOpen() const { return shown(); }
    /// Where it is in its window, px; null if it is closed.
    QRect placeInWindow() const;
    /// The code of the language that is typed, such as "de"; empty before the first use.
    QString language() const { return m_language; }
    /// The field's hints, its text or its cursor have changed.
    void follow();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// It came up, went, or lies elsewhere.
    void changed();
    void languageChanged();
    /// The user is done with typing.
    void hideRequested();

private:
    using Keyboard = vexo::hox::qt::panel::OnScreenKeyboard;

    Keyboard *keyboardIn(QWidget *window);
    Keyboard *createKeyboard(QWidget *window);
    void leaveWindow();
    Keyboard *shown() const;
    void grow(QWidget *window, const QSize &wanted);
    void place();
    void keepFieldAbove(int bottom);

    QPointer<Keyboard> m_keyboard; // owned by its window
    QPointer<QWidget> m_window;
    QPointer<QWidget> m_field;
    ContentShift m_shift;
    QRect m_small; // what the window was before it grew, px; null if it did not
    int m_grown = 0; // by this height, px
    QString m_language;
    bool m_is_placing = false;
    bool m_is_told = false; // that it is open
};
