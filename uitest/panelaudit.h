#pragma once
// SPDX-License-Identifier: MIT

#include "uitest/hoxquitest_export.h"

#include <QPointer>
#include <QRectF>
#include <QString>
#include <QVector>
#include <QWidget>

namespace vexo::hox::qt::uitest {

/// What an audit found, and where.
struct HOXQUITEST_EXPORT Finding
{
    enum Severity {
        Warning, ///< works, but less well than it could
        Error ///< some users cannot use it
    };

    Severity severity = Warning;
    QString rule; ///< such as "touch-size"
    QPointer<QWidget> widget; ///< null once it was deleted
    QString where; ///< its path from the window, in words
    QRectF mm; ///< of the window, from its top left
    QString text; ///< what is wrong, with figures
};

/// How large and how far apart is enough for a finger, mm.
struct HOXQUITEST_EXPORT TouchLimits
{
    double error_mm = 7; ///< smaller in one direction is an error
    double warning_mm = 9; ///< smaller in one direction is a warning
    double gap_mm = 1.3; ///< closer to a neighbour is a warning, if one of the two is small

    /// For a hand in a glove: 19 mm.
    static TouchLimits gloves();
};

/// Ratios of ink to ground, as WCAG 2.2 counts them, 1 to 21.
struct HOXQUITEST_EXPORT ContrastLimits
{
    double error = 3; ///< below is an error
    double warning = 4.5; ///< below is a warning, unless the text is large
    double large_pt = 18; ///< from here on a text is large
    double large_bold_pt = 14; ///< and a bold one from here on
};

} // namespace vexo::hox::qt::uitest
