#pragma once
// SPDX-License-Identifier: MIT

#include <QRectF>

class QTextLayout;

namespace vexo::hox::qt::ui {

/// What the letters of \a layout cover: accents reach above and below their lines, letters beside.
QRectF glyphExtent(const QTextLayout &layout);

} // namespace vexo::hox::qt::ui
