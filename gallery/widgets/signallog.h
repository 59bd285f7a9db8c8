#pragma once
// SPDX-License-Identifier: MIT

#include <QPlainTextEdit>

/// A list of what happened, with the time of day, that grows at its end.
class SignalLog : public QPlainTextEdit
{
public:
    /// \a hint is shown while nothing has happened.
    explicit SignalLog(const QString &hint);

    /// Appends a line: now, who, what.
    void note(const QString &sender, const QString &signal);
};
