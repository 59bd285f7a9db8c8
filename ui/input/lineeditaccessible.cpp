// SPDX-License-Identifier: MIT
#include "ui/input/lineeditaccessible_p.h"

#include "ui/foundation/accessible_p.h"
#include "ui/input/vexolineedit.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QValidator>

namespace vexo::hox::qt::ui {

namespace {

class LineEditAccessible : public QAccessibleWidget,
                           public QAccessibleTextInterface,
                           public QAccessibleEditableTextInterface
{
public:
    using Boundary = QAccessible::TextBoundaryType;

    explicit LineEditAccessible(VexoLineEdit *field)
        : QAccessibleWidget(field, QAccessible::EditableText)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString &text) override;
    QAccessible::State state() const override;

    void selection(int index, int *start, int *end) const override
    {
        const bool has_selection = index == 0 && field()->hasSelectedText();
        *start = has_selection ? field()->selectionStart() : 0;
        *end = has_selection ? field()->selectionEnd() : 0;
    }
    int selectionCount() const override { return field()->hasSelectedText() ? 1 : 0; }
    void addSelection(int start, int end) override { setSelection(0, start, end); }
    void removeSelection(int) override { field()->deselect(); }
    void setSelection(int, int start, int end) override
    {
        field()->setSelection(start, end - start);
    }
    int cursorPosition() const override { return field()->cursorPosition(); }
    void setCursorPosition(int position) override { field()->setCursorPosition(position); }
    QString text(int start, int end) const override
    {
        return isSecret() || start > end ? QString() : field()->text().mid(start, end - start);
    }
    QString textBeforeOffset(int offset, Boundary boundary, int *start, int *end) const override
    {
        return QAccessibleTextInterface::textBeforeOffset(resolved(offset), boundary, start, end);
    }
    QString textAfterOffset(int offset, Boundary boundary, int *start, int *end) const override
    {
        return QAccessibleTextInterface::textAfterOffset(resolved(offset), boundary, start, end);
    }
    QString textAtOffset(int offset, Boundary boundary, int *start, int *end) const override
    {
        return QAccessibleTextInterface::textAtOffset(resolved(offset), boundary, start, end);
    }
    int characterCount() const override { return field()->text().size(); }
    QRect characterRect(int) const override { return rect(); }
    int offsetAtPoint(const QPoint &point) const override
    {
        return field()->cursorPositionAt(field()->mapFromGlobal(point));
    }
    void scrollToSubstring(int start, int) override { field()->setCursorPosition(start); }
    QString attributes(int offset, int *start, int *end) const override
    {
        *start = *end = resolved(offset);
        return QString();
    }

    void deleteText(int start, int end) override { replaceText(start, end, QString()); }
    void insertText(int offset, const QString &text) override { replaceText(offset, offset, text); }
    void replaceText(int start, int end, const QString &text) override;

private:
    VexoLineEdit *field() const { return static_cast<VexoLineEdit *>(widget()); }
    bool isSecret() const
    {
        return field()->isDrawedPasswordSecured() || field()->echoMode() != QLineEdit::Normal;
    }
    int resolved(int offset) const;
};

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

QAccessibleInterface *createLineEditAccessible(const QString &class_name, QObject *object)
{
    auto *field = qobject_cast<VexoLineEdit *>(object);
    const bool is_field = class_name == QLatin1String(VexoLineEdit::staticMetaObject.className());
    return field && is_field ? new LineEditAccessible(field) : nullptr;
}

} // namespace

void makeLineEditsAccessible()
{
    installAccessible<createLineEditAccessible>();
}

} // namespace vexo::hox::qt::ui
