#pragma once
// SPDX-License-Identifier: MIT

#include "uitest/panelsheet.h"

namespace vexo::hox::qt::uitest {

/// How \a is differs from \a was.
PictureDifference differenceOf(
    const QImage &was, const QImage &is, const PictureTolerance &tolerance);

} // namespace vexo::hox::qt::uitest
