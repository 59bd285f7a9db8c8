#pragma once
// SPDX-License-Identifier: MIT

#include "ui/input/vexolineedit.h"

#include <QAccessibleWidget>

namespace vexo::hox::qt::ui {

/// How assistive technology sees a VexoLineEdit: as the toolkit shows a line edit, except that a
/// secret one has no text to be read: the toolkit reports each change of a text with the text
/// itself, that of passwords too, to whoever may read it.
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

} // namespace vexo::hox::qt::ui
