#pragma once
// SPDX-License-Identifier: MIT

#include <QRect>
#include <QString>
#include <QVector>
#include <QWidget>

namespace vexo::hox::qt::uitest {

/// A part of a widget that reacts to a press.
struct TouchPart
{
    QRect px; ///< of the widget
    QString name; ///< such as "tab"; empty if it is the widget as a whole
};

/// Whether \a widget takes presses at all. Of the toolkit's classes and the library's a table knows
/// it; any other class does if it takes the focus at a click, or has a signal clicked(), pressed()
/// or tapped().
bool reactsToPress(const QWidget *widget);
/// Whether a press that a child takes does what one beside the child does: the check box of a row.
bool includesItsChildren(const QWidget *widget);
/// Whether it is not in the table, and only looks as if it took presses.
bool isGuessed(const QWidget *widget);

/// The parts of a widget that reacts; empty if none of it does at present. Only those that are
/// within it, and of the rows of a view, the tabs of a bar and such each one.
QVector<TouchPart> touchParts(const QWidget *widget);

} // namespace vexo::hox::qt::uitest
