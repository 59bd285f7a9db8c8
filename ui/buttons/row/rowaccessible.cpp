// SPDX-License-Identifier: MIT
#include "ui/buttons/row/rowaccessible_p.h"

#include "ui/buttons/vexofunctionbutton.h"
#include "ui/foundation/accessible_p.h"

#include <QAccessibleWidget>

namespace vexo::hox::qt::ui {

namespace {

class RowAccessible : public QAccessibleWidget
{
public:
    explicit RowAccessible(VexoFunctionButton *row)
        : QAccessibleWidget(row, roleOf(row->property("m_button_type").toInt()))
    {
    }

    // Label and right-hand widget are parts of the row, not objects beside it.
    int childCount() const override { return 0; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessibleInterface *focusChild() const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    QAccessible::Role role() const override
    {
        return roleOf(row()->property("m_button_type").toInt());
    }
    QString text(QAccessible::Text what) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &action) override;

private:
    static QAccessible::Role roleOf(int type);
    VexoFunctionButton *row() const { return qobject_cast<VexoFunctionButton *>(object()); }
};

QString RowAccessible::text(QAccessible::Text what) const
{
    const QString given = QAccessibleWidget::text(what);
    return what == QAccessible::Name && given.isEmpty() ? row()->text() : given;
}

QAccessible::State RowAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    const QAbstractButton *button = row()->getButtonInstance();
    state.checkable = button->isCheckable();
    state.checked = button->isChecked();
    state.pressed = row()->isDown();
    return state;
}

QStringList RowAccessible::actionNames() const
{
    if (!row()->isEnabled())
        return QAccessibleWidget::actionNames();
    return QStringList{ pressAction() } + QAccessibleWidget::actionNames();
}

void RowAccessible::doAction(const QString &action)
{
    if (action == pressAction())
        row()->click();
    else
        QAccessibleWidget::doAction(action);
}

QAccessible::Role RowAccessible::roleOf(int type)
{
    switch (type) {
    case VexoFunctionButton::ActionType:
        return QAccessible::Button;
    case VexoFunctionButton::RadiobuttonType:
    case VexoFunctionButton::FullsizeRadiobuttonType:
        return QAccessible::RadioButton;
    default:
        return QAccessible::CheckBox;
    }
}

QAccessibleInterface *createRowAccessible(const QString &class_name, QObject *object)
{
    auto *row = qobject_cast<VexoFunctionButton *>(object);
    const bool is_row
        = class_name == QLatin1String(VexoFunctionButton::staticMetaObject.className());
    return row && is_row ? new RowAccessible(row) : nullptr;
}

} // namespace

void makeRowsAccessible()
{
    installAccessible<createRowAccessible>();
}

} // namespace vexo::hox::qt::ui
