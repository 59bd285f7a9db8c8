#pragma once
// SPDX-License-Identifier: MIT

#include <QString>
#include <QVector>

class MainWindow;

/// The name of the PNG file of page \a page, an index into pageList().
QString shotName(int page);

/// Renders each of \a pages (indices into pageList()) as the window shows it, in full height, to a
/// PNG file in \a folder, and prints the files' names. Throws std::runtime_error when a file cannot
/// be written.
void takeShots(MainWindow &window, const QVector<int> &pages, const QString &folder);
