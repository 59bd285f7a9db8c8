#pragma once
// SPDX-License-Identifier: MIT

#include <QObject>
#include <QVector>

namespace vexo::hox::qt::panel {
class OnScreenKeyboard;
}

namespace vexo::hox::qt::ui {
class VexoLineEdit;
}

/// Lets an on-screen keyboard type into the field that was touched last, which has a dark
/// frame and shows its cursor.
class FieldEntry : public QObject
{
    Q_OBJECT

public:
    using Field = vexo::hox::qt::ui::VexoLineEdit;

    using Keyboard = vexo::hox::qt::panel::OnScreenKeyboard;

    explicit FieldEntry(Keyboard *keyboard);

    /// The first one is current. Its trailing button deletes too.
    void add(Field *field);
    Field *current() const { return m_current; }
    void setCurrent(Field *field);

Q_SIGNALS:
    /// A character was typed into the current field.
    void typed();
    void entered();

private:
    Keyboard *const m_keyboard;
    QVector<Field *> m_fields;
    Field *m_current = nullptr;
};
