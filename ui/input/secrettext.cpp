// SPDX-License-Identifier: MIT
#include "ui/input/secrettext_p.h"

#include <QLineEdit>
#include <QStyle>

namespace vexo::hox::qt::ui {

QVariant masked(const QLineEdit &field, Qt::InputMethodQuery query, const QVariant &answer)
{
    switch (query) {
    case Qt::ImSurroundingText:
    case Qt::ImCurrentSelection:
    case Qt::ImTextBeforeCursor:
    case Qt::ImTextAfterCursor: {
        const QChar mask(
            field.style()->styleHint(QStyle::SH_LineEdit_PasswordCharacter, nullptr, &field));
        const bool tells_length = field.echoMode() != QLineEdit::NoEcho;
        return tells_length ? QString(answer.toString().size(), mask) : QString();
    }
    default:
        return answer;
    }
}

void forgetHistory(QLineEdit *field)
{
    const int cursor = field->cursorPosition();
    const bool is_modified = field->isModified();
    field->setText(field->text());
    field->setCursorPosition(cursor);
    field->setModified(is_modified);
}

} // namespace vexo::hox::qt::ui
