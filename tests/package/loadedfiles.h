#pragma once
// SPDX-License-Identifier: MIT

#include <QFile>
#include <QRegularExpression>
#include <QStringList>

/// Our libraries, plugins and catalogues that this process has loaded.
inline QStringList loadedFiles()
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    if (!maps.open(QIODevice::ReadOnly))
        return { maps.errorString() };
    QStringList files;
    const QStringList lines = QString::fromLocal8Bit(maps.readAll()).split('\n').filter("hoxq");
    for (const QString &line : lines)
        files += line.mid(line.indexOf('/'));
    files.removeDuplicates();
    return files.filter(QRegularExpression("hoxq[^/]*$"));
}
