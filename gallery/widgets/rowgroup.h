#pragma once
// SPDX-License-Identifier: MIT

#include <QWidget>

class QVBoxLayout;

/// Rows below each other with lines of 1 px between them and around all.
class RowGroup : public QWidget
{
public:
    RowGroup();

    /// Appends \a row, which now belongs to the list.
    void addRow(QWidget *row);

private:
    QVBoxLayout *m_layout;
};
