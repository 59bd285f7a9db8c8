#pragma once
// SPDX-License-Identifier: MIT

#include "ui/foundation/scalinginfo.h"

#include <QString>

namespace vexo::hox::qt::ui {

/// What no panel has about \a scaling (below 2 or above 25 px/mm, pixels off square by more than
/// 5 %), with its figures; empty when there is nothing.
inline QString scaleFault(const ScalingInfo &scaling)
{
    const auto isUnlikely = [](float px_per_mm) { return !(px_per_mm >= 2 && px_per_mm <= 25); };
    const bool is_square = qAbs(scaling.m_xy_ratio - 1) <= 0.05F;
    if (is_square && !isUnlikely(scaling.m_px_per_mm_x) && !isUnlikely(scaling.m_px_per_mm_y))
        return QString();
    return QStringLiteral("%1 x %2 px on %3 x %4 mm, which is %5 x %6 px/mm")
        .arg(scaling.m_pixels.width())
        .arg(scaling.m_pixels.height())
        .arg(scaling.m_size_mm.width())
        .arg(scaling.m_size_mm.height())
        .arg(double(scaling.m_px_per_mm_x), 0, 'g', 3)
        .arg(double(scaling.m_px_per_mm_y), 0, 'g', 3);
}

} // namespace vexo::hox::qt::ui
