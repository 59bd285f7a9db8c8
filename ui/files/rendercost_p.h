#pragma once
// SPDX-License-Identifier: MIT

#include <QRectF>
#include <QSize>

class QSvgRenderer;

namespace vexo::hox::qt::ui {

/// Whether rendering into \a rect of an image of \a px takes some tenths of a second at most on a
/// panel. The drawing is walked through without a pixel being painted. Works in each thread.
bool isRenderedInTime(QSvgRenderer *renderer, const QSize &px, const QRectF &rect);

} // namespace vexo::hox::qt::ui
