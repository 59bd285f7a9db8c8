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

    Severity severity = Warning; ///< how bad it is
    QString rule; ///< such as "touch-size"
    QPointer<QWidget> widget; ///< null once it was deleted
    QString where; ///< its path from the window, in words
    QRectF mm; ///< of the window, from its top left
    QString text; ///< what is wrong, with figures
};

/// How large and how far apart is enough for a finger, mm. 7 mm are about the 44 pt that Apple's
/// Human Interface Guidelines ask for, and 9 mm a little more than the 48 dp (7.6 mm) of Material
/// Design; Parhi, Karlson and Bederson (MobileHCI 2006) found that errors of a thumb hardly become
/// fewer above 9.2 mm for single taps. 1.3 mm are the 8 dp between targets of Material Design.
struct HOXQUITEST_EXPORT TouchLimits
{
    double error_mm = 7; ///< smaller in one direction is an error
    double warning_mm = 9; ///< smaller in one direction is a warning
    double gap_mm = 1.3; ///< closer to a neighbour is a warning, if one of the two is small

    /// For a hand in a glove: 19 mm, as MIL-STD-1472 asks for buttons that a gloved fingertip
    /// presses.
    static TouchLimits gloves();
};

/// Ratios of ink to ground, 1 to 21, as WCAG 2.2 counts them; it asks for 4.5 and 3 in its success
/// criteria 1.4.3 (texts) and 1.4.11 (icons), and calls a text large from 18 pt, a bold one from 14
/// pt.
struct HOXQUITEST_EXPORT ContrastLimits
{
    double error = 3; ///< below is an error
    double warning = 4.5; ///< below is a warning, unless the text is large
    double large_pt = 18; ///< from here on a text is large
    double large_bold_pt = 14; ///< and a bold one from here on
};

/// What a finger, an eye, assistive technology and an idle processor would complain about on a
/// window that is shown. It works on any widget, ours or stock, returns values and asserts nothing;
/// a null window and one that is not shown have no findings. Measures are those of ScalingInfo.
///
/// An audit looks at what the screen shows: scroll, or open the next page, and audit again. Only
/// sizes and names also count for what is scrolled out of sight. Call it between events, not from
/// a paint.
class HOXQUITEST_EXPORT PanelAudit
{
public:
    /// Rules "touch-size" and "touch-gap": what of each enabled widget that reacts to a press a
    /// finger reaches, mm. That is where a press gets to it: what lies above it and what its
    /// parents cut off is taken away, but not what can be scrolled into sight. Of sliders, spin
    /// boxes, tabs and lists each part counts that reacts by itself, of a row with a check box that
    /// toggles with it only the row. Of classes that the audit does not know those count that take
    /// the focus at a click or have a signal clicked(), pressed() or tapped(), unless they hold
    /// others that do. A size that was cut to whole px counts as meant.
    ///
    /// The margin in which an EasyAccessButton takes the lift of a finger does not make it larger,
    /// since a press must begin on it: it makes a warning of an error where size and margin
    /// together are large enough.
    static QVector<Finding> touchSizes(QWidget *window, const TouchLimits &limits = TouchLimits());
    /// Rules "text-cut" and "text-overlap": a text that is elided, cut by its widget or by a
    /// parent, or lies over another one. What scrolling brings is not cut, nor what a user types.
    /// Then the same with each text \a factor times as long, in a translation that can be read (1
    /// and less: not at all), and from right to left, in the window as large as it is; a fault that
    /// only these have is a warning. Texts, shortcuts, direction and places are restored, and no
    /// signal is emitted meanwhile; widgets do get the events of a new layout.
    static QVector<Finding> texts(QWidget *window, double factor = 1.4);
    /// Rule "contrast": the ratio of each text and icon to the ground that lies behind it, as it is
    /// painted: not by palette, but by what a picture with it and one without it show, so that soft
    /// edges do not count. Of a text the worst tenth of the place that it covers counts, of an icon
    /// the strongest twentieth of its pixels; 3 is enough for an icon. Buttons are also shown down
    /// and in their other check state; disabled widgets, pictures and logos are exempt. Images
    /// count as icons on buttons and labels only, up to 25 mm, if a tenth of them is transparent.
    static QVector<Finding> contrasts(
        QWidget *window, const ContrastLimits &limits = ContrastLimits());
    /// Rules "accessible-name" and "accessible-role": what can be pressed or typed into and says
    /// nothing to assistive technology, or is nothing to it that can be pressed.
    static QVector<Finding> names(QWidget *window);
    /// Rules "idle-repaint", "idle-timer" and "wasted-repaint": lets the event loop run for \a ms
    /// and counts what is painted, mm², and which timers tick, more than once, and how often the
    /// process wakes up for anything else. What has the property "hoxq_blinks" itself or in an
    /// object above it, and the cursor of a field with the focus, may do so. A widget that is
    /// painted over 100 mm² more than what has changed on the screen, and over more than twice of
    /// it, wastes that, declared or not. Touch nothing meanwhile. 0 ms and less: nothing is found.
    static QVector<Finding> idle(QWidget *window, int ms = 2000);
    /// All rules with their usual limits. It takes as long as it watches for idle(), which is left
    /// out with 0 ms.
    static QVector<Finding> all(QWidget *window, int idle_ms = 2000);
    /// A line for each: severity, rule, where, what is wrong, and place in mm, in plain words.
    /// Empty if there are none.
    static QString report(const QVector<Finding> &findings);
};

} // namespace vexo::hox::qt::uitest
