#pragma once
// SPDX-License-Identifier: MIT

#include <QString>
#include <QStringList>
#include <QVector>

class Page;

/// A page of the gallery. It is built when it is first shown.
struct PageEntry
{
    QString name; ///< on the command line and in file names
    QString title; ///< in the list
    Page *(*build)(); ///< the caller owns the page
};

/// All pages, in the order of the list at the left. A new page is a line in pagelist.cpp.
const QVector<PageEntry> &pageList();
QStringList pageNames();
