// SPDX-License-Identifier: MIT
#include "gallery/widgets/fieldentry.h"

#include "gallery/widgets/keyboard.h"

#include <VexoColors>
#include <VexoLineEdit>

using vexo::hox::qt::ui::VexoColors;

FieldEntry::FieldEntry(Keyboard *keyboard)
    : QObject(keyboard)
{
    connect(keyboard, &Keyboard::typed, this, &FieldEntry::type);
    connect(keyboard, &Keyboard::resetPressed, this, [this] { erase(m_current); });
    connect(keyboard, &Keyboard::enterPressed, this, &FieldEntry::entered);
}

void FieldEntry::add(Field *field)
{
    m_fields += field;
    connect(field, &Field::textEditWanted, this, [this, field] { setCurrent(field); });
    connect(field, &Field::deleteButtonClick, this, [this, field] {
        setCurrent(field);
        erase(field);
    });
    if (!m_current)
        setCurrent(field);
}

void FieldEntry::setCurrent(Field *field)
{
    m_current = field;
    for (Field *each : qAsConst(m_fields)) {
        each->setCursorState(each == field);
        each->setBorderColor(each == field ? VexoColors::C4 : VexoColors::C12);
    }
}

// Always at the end, where the cursor is shown: a touch has moved that of the toolkit.
void FieldEntry::type(const QString &text)
{
    m_current->end(false);
    m_current->insert(text);
    Q_EMIT typed();
}

void FieldEntry::erase(Field *field)
{
    field->end(false);
    field->backspace();
}
