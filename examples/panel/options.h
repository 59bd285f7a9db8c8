#pragma once
// SPDX-License-Identifier: MIT

#include <QSize>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <optional>

class QApplication;

/// The command line.
struct Options
{
    std::optional<QSize> px; ///< of the panel; that of the screen when not given
    std::optional<QSizeF> mm; ///< of the panel
    QString shots; ///< folder for pictures of all screens; empty: open a window

    /// Throws std::invalid_argument with one line on what is wrong.
    static Options read(const QStringList &arguments);
    static const char *help();
};

/// Scale, style and fonts of the panel; its sheets and palette are those of the PanelWindow.
void setUpPanel(QApplication *application, const Options &options);
