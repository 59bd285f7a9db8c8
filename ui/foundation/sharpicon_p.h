#pragma once
// SPDX-License-Identifier: MIT

#include <QIcon>
#include <QPixmap>

namespace vexo::hox::qt::ui {

/// That of the sharpest screen: what is rendered before it is shown is rendered for that one.
double sharpestRatio();

/// Pixels of the screen for \a px at \a ratio: no more than a widget of that size has wherever it
/// stands, unless it would then count as a smaller one.
QSize sharpSize(const QSize &px, double ratio);

/// Of \a icon (Normal, Off) what is shown on \a px at \a ratio: a rendering with that many more
/// pixels where there is one, which takes the same place. Whether the application has asked for
/// Qt::AA_UseHighDpiPixmaps does not matter.
QPixmap iconPixmap(const QIcon &icon, const QSize &px, double ratio);

} // namespace vexo::hox::qt::ui
