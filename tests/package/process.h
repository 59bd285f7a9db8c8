#pragma once
// SPDX-License-Identifier: MIT

#include <QStringList>

/// What a program that has ended printed (both streams, in order), and its exit code.
struct Finished
{
    int exit_code;
    QString output;
};

/// Runs \a program, found in PATH unless it is a path, in \a folder and waits for its end, at most
/// four minutes. A program that does not start or crashes has the exit code -1. \a environment
/// ("NAME=value") adds to this process's own.
Finished run(const QString &program, const QStringList &arguments,
    const QString &folder = QString(), const QStringList &environment = QStringList());
