#pragma once
// SPDX-License-Identifier: MIT

#include "uitest/panelaudit.h"

#include <QSizeF>

namespace vexo::hox::qt::uitest {

using Widgets = QVector<QPointer<QWidget>>;

/// What the screen shows of \a window: itself and all visible widgets in it, a parent before its
/// children, no other windows. Empty while it is not shown.
Widgets shownWidgets(QWidget *window);

/// Place of \a px, which counts from the top left of \a widget, px of \a window.
QRect placeIn(const QWidget *window, const QWidget *widget, const QRect &px);

QSizeF mmOf(const QSize &px);
QRectF mmOf(const QRect &px);
QString textOf(const QSizeF &mm); ///< "12.0 x 9.8 mm"

/// Whether a finger moves what \a viewport shows in a direction: it belongs to a scroll area that
/// has more than it shows, and a scroll bar or a QScroller.
bool isScrolled(const QWidget *viewport, Qt::Orientation orientation);
bool isScrolled(const QWidget *viewport); ///< in either direction

/// A finding about \a widget at \a px of the window.
Finding findingAt(QWidget *widget, const QRect &px, const char *rule, Finding::Severity severity,
    const QString &text);

} // namespace vexo::hox::qt::uitest
