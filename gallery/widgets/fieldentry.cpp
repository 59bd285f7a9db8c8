// SPDX-License-Identifier: MIT
#include "gallery/widgets/fieldentry.h"

#include <OnScreenKeyboard>
#include <VexoColors>
#include <VexoLineEdit>

using vexo::hox::qt::ui::VexoColors;

FieldEntry::FieldEntry(Keyboard *keyboard)
    : QObject(keyboard)
    , m_keyboard(keyboard)
{
}

void FieldEntry::add(Field *field)
{
    m_fields += field;
    connect(field, &Field::textEditWanted, this, [this, field] { setCurrent(field); });
    connect(field, &Field::textEdited, this, &FieldEntry::typed);
    connect(field, &Field::returnPressed, this, &FieldEntry::entered);
    connect(field, &Field::deleteButtonClick, this, [this, field] {
        setCurrent(field);
        field->end(false); // a touch has moved the cursor of the toolkit
        field->backspace();
    });
    if (!m_current)
        setCurrent(field);
}

void FieldEntry::setCurrent(Field *field)
{
    m_current = field;
    m_keyboard->setReceiver(field);
    for (Field *each : qAsConst(m_fields)) {
        each->setCursorState(each == field);
        each->setBorderColor(each == field ? VexoColors::C4 : VexoColors::C12);
    }
}
