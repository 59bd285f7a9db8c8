#pragma once
// SPDX-License-Identifier: MIT

#include "support/onscreen.h"
#include "support/panelscale.h"

#include <RowList>
#include <VexoFunctionButton>

#include <QScrollBar>

/// A list of 400 x 490 px, which are ten rows.
struct ListScreen : QWidget
{
    static const int row_px = 49;

    explicit ListScreen(QAbstractItemModel *model)
    {
        resize(400, 10 * row_px);
        list = new vexo::hox::qt::ui::RowList(this);
        list->resize(size());
        list->setModel(model);
        connect(list, &vexo::hox::qt::ui::RowList::clicked, this,
            [this](const QModelIndex &index) { clicked += index.data().toString(); });
        show();
        settle();
    }

    vexo::hox::qt::ui::VexoFunctionButton *rowAt(int row) const
    {
        return qobject_cast<vexo::hox::qt::ui::VexoFunctionButton *>(
            list->rowAt(list->model()->index(row, 0)));
    }
    QPoint placeOf(int row, int x = 100) const { return { x, row * row_px + 25 - scrolled() }; }
    int scrolled() const { return list->verticalScrollBar()->value(); }
    void scroll(int px) { list->verticalScrollBar()->setValue(px); }
    int widgetCount() const { return list->findChildren<QWidget *>().size(); }

    PanelScale scale{ 4, 5 };
    vexo::hox::qt::ui::RowList *list;
    QStringList clicked;
};

/// The text of the row that is seen at the top.
inline QString textAtTop(const ListScreen &screen)
{
    const QWidget *part
        = screen.list->widget()->childAt(3, screen.scrolled() + ListScreen::row_px / 2);
    return screen.list->indexOf(part).data().toString();
}
