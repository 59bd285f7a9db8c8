#pragma once
// SPDX-License-Identifier: MIT

#include "ui/scrolling/rowcolumn_p.h"

#include <QAccessibleWidget>

namespace vexo::hox::qt::ui {

/// How assistive technology sees the content of a RowList: as a list of the rows that there are, in
/// their order. Rows that wait for their use and separators are left out.
class RowListAccessible : public QAccessibleWidget
{
public:
    explicit RowListAccessible(RowColumn *column)
        : QAccessibleWidget(column, QAccessible::List)
    {
    }

    int childCount() const override { return rows().size(); }
    QAccessibleInterface *child(int index) const override
    {
        return QAccessible::queryAccessibleInterface(rows().value(index));
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return rows().indexOf(qobject_cast<QWidget *>(child->object()));
    }
    QString text(QAccessible::Text what) const override
    {
        const QWidget *view = widget()->parentWidget();
        const QWidget *list = view ? view->parentWidget() : nullptr;
        return what == QAccessible::Name && list ? list->accessibleName()
                                                 : QAccessibleWidget::text(what);
    }

private:
    QVector<QWidget *> rows() const { return static_cast<RowColumn *>(object())->rows(); }
};

} // namespace vexo::hox::qt::ui
