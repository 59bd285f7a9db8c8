#pragma once
// SPDX-License-Identifier: MIT

#include <QModelIndex>

class QAbstractButton;
class QAbstractItemModel;
class QWidget;

namespace vexo::hox::qt::ui {

/// What a RowList knows of the widgets in it, and of the index that each shows.
class RowListRow
{
public:
    /// Of RowList::RowType, or one of the application's.
    static int typeOf(const QModelIndex &index);
    /// A row of the library; of a type that it does not know an ActionRow.
    static QWidget *make(int type);
    /// Readies a row that has just been made: the model decides what is checked.
    static void prepare(QWidget *row);
    /// Lets \a row show what the model says of \a index.
    static void show(QWidget *row, const QModelIndex &index);
    /// Whose clicked() is a tap, and who shows the checked state; null in a row that is no button.
    static QAbstractButton *buttonOf(QWidget *row);
    /// Hands \a model the checked state that a tap has given \a row, if the index takes it.
    static void write(QWidget *row, const QModelIndex &index, QAbstractItemModel *model);
};

} // namespace vexo::hox::qt::ui
