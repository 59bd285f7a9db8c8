// SPDX-License-Identifier: MIT
#include "ui/scrolling/rowlistaccessible_p.h"

#include "ui/foundation/accessible_p.h"
#include "ui/scrolling/rowcolumn_p.h"

#include <QAccessibleWidget>

namespace vexo::hox::qt::ui {

namespace {

class RowColumnAccessible : public QAccessibleWidget
{
public:
    explicit RowColumnAccessible(RowColumn *column)
        : QAccessibleWidget(column, QAccessible::List)
    {
    }

    // Rows that wait for their use and separators are left out.
    int childCount() const override { return rows().size(); }
    QAccessibleInterface *child(int index) const override
    {
        return QAccessible::queryAccessibleInterface(rows().value(index));
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return rows().indexOf(qobject_cast<QWidget *>(child->object()));
    }
    QString text(QAccessible::Text what) const override;

private:
    QVector<QWidget *> rows() const { return static_cast<RowColumn *>(object())->rows(); }
};

QString RowColumnAccessible::text(QAccessible::Text what) const
{
    const QWidget *list
        = widget()->parentWidget() ? widget()->parentWidget()->parentWidget() : nullptr;
    return what == QAccessible::Name && list ? list->accessibleName()
                                             : QAccessibleWidget::text(what);
}

QAccessibleInterface *createRowColumnAccessible(const QString &class_name, QObject *object)
{
    const bool may_be = class_name == QLatin1String("QWidget"); // it has no name of its own
    auto *column = may_be ? dynamic_cast<RowColumn *>(object) : nullptr;
    return column ? new RowColumnAccessible(column) : nullptr;
}

} // namespace

void makeRowListsAccessible()
{
    installAccessible<createRowColumnAccessible>();
}

} // namespace vexo::hox::qt::ui
