#pragma once
// SPDX-License-Identifier: MIT

#include <QSize>
#include <QSizeF>
#include <QString>
#include <QVector>

#include <optional>

/// A panel that a desktop is to show.
struct PanelSize
{
    QSize px;
    QSizeF mm;
};

/// The command line. Read before the application object exists, because it decides on the platform.
struct Options
{
    /// Reads the arguments; prints the help and leaves the process when asked for it. Throws
    /// std::invalid_argument with one line on what is wrong. Creates the folder of the pictures.
    static Options fromArguments(int &argc, char **argv);

    std::optional<PanelSize> panel; ///< the real screen when not given
    QString shots_dir; ///< absolute; empty: open a window
    QVector<int> pages; ///< indices into pageList(); all of them, or the one asked for
    bool has_platform = false; ///< the caller names a platform of the toolkit
};
