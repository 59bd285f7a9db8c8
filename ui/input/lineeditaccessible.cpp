// SPDX-License-Identifier: MIT
#include "ui/input/lineeditaccessible_p.h"

#include <QValidator>

namespace vexo::hox::qt::ui {

void *LineEditAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return isSecret() ? nullptr : static_cast<QAccessibleTextInterface *>(this);
    if (type == QAccessible::EditableTextInterface)
        return static_cast<QAccessibleEditableTextInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString LineEditAccessible::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Value) {
        const QString text = field()->text();
        if (field()->echoMode() == QLineEdit::NoEcho)
            return QString();
        return isSecret() ? QString(text.size(), QLatin1Char('*')) : text;
    }
    const QString text = QAccessibleWidget::text(kind);
    const bool is_described = kind != QAccessible::Description || !text.isEmpty();
    return is_described ? text : field()->placeholderText();
}

void LineEditAccessible::setText(QAccessible::Text kind, const QString &text)
{
    if (kind == QAccessible::Value)
        replaceText(0, characterCount(), text);
    else
        QAccessibleWidget::setText(kind, text);
}

QAccessible::State LineEditAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.editable = true;
    state.selectableText = true;
    state.readOnly = field()->isReadOnly();
    state.passwordEdit = isSecret();
    return state;
}

// Two offsets are names: of the end of the text, and of the cursor.
int LineEditAccessible::resolved(int offset) const
{
    const int end_name = -1;
    const int cursor_name = -2;
    if (offset == end_name)
        return characterCount();
    return offset == cursor_name ? cursorPosition() : offset;
}

void LineEditAccessible::replaceText(int start, int end, const QString &text)
{
    QString changed = field()->text();
    changed.replace(start, end - start, text);
    int position = 0;
    const QValidator *validator = field()->validator();
    if (!validator || validator->validate(changed, position) == QValidator::Acceptable)
        field()->setText(changed);
}

} // namespace vexo::hox::qt::ui
