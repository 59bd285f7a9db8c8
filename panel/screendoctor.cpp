// SPDX-License-Identifier: MIT
#include "panel/screendoctor.h"

#include <ScalingInfo>

namespace vexo::hox::qt::panel {

QStringList ScreenDoctor::findings()
{
    const ui::ScalingInfo &scaling = *ui::ScalingInfo::inst();
    if (scaling.m_px_per_mm_x >= 2 && scaling.m_px_per_mm_x <= 25)
        return QStringList();
    return { QStringLiteral("%1 px/mm is no density of a panel.").arg(scaling.m_px_per_mm_x) };
}

} // namespace vexo::hox::qt::panel
