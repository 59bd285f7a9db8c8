#pragma once
// SPDX-License-Identifier: MIT

#include "ui/buttons/vexofunctionbutton.h"

#include <QAccessibleWidget>

namespace vexo::hox::qt::ui {

/// How assistive technology sees a VexoFunctionButton: as one object with its text, the role of its
/// right-hand widget, and whether that is checked.
class RowAccessible : public QAccessibleWidget
{
public:
    explicit RowAccessible(VexoFunctionButton *row)
        : QAccessibleWidget(row)
    {
    }

    /// Tells that the right-hand widget of \a row was checked or unchecked.
    static void tellChecked(VexoFunctionButton *row)
    {
        QAccessible::State changed;
        changed.checked = true;
        QAccessibleStateChangeEvent event(row, changed);
        QAccessible::updateAccessibility(&event);
    }

    // Label and right-hand widget are parts of the row, not objects beside it.
    int childCount() const override { return 0; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessibleInterface *focusChild() const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }

    QAccessible::Role role() const override
    {
        switch (row()->property("m_button_type").toInt()) {
        case VexoFunctionButton::ActionType:
            return QAccessible::Button;
        case VexoFunctionButton::RadiobuttonType:
        case VexoFunctionButton::FullsizeRadiobuttonType:
            return QAccessible::RadioButton;
        default:
            return QAccessible::CheckBox;
        }
    }

    QString text(QAccessible::Text what) const override
    {
        const QString given = QAccessibleWidget::text(what);
        return what == QAccessible::Name && given.isEmpty() ? row()->text() : given;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        const QAbstractButton *button = row()->getButtonInstance();
        state.checkable = button->isCheckable();
        state.checked = button->isChecked();
        state.pressed = row()->isDown();
        return state;
    }

    QStringList actionNames() const override
    {
        const QStringList names = QAccessibleWidget::actionNames();
        return row()->isEnabled() ? QStringList{ pressAction() } + names : names;
    }

    void doAction(const QString &action) override
    {
        if (action == pressAction())
            row()->click();
        else
            QAccessibleWidget::doAction(action);
    }

private:
    VexoFunctionButton *row() const { return static_cast<VexoFunctionButton *>(widget()); }
};

} // namespace vexo::hox::qt::ui
