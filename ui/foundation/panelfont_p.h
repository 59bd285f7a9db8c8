#pragma once
// SPDX-License-Identifier: MIT

#include "ui/foundation/pixels_p.h"

#include <QFont>

namespace vexo::hox::qt::ui {

/// Gives \a font the height of \a pt points, at most 4096 px, higher than any panel: the toolkit
/// fills outlines of such letters line by line, for half a second at 32,767 px. A height below 1 px
/// leaves it alone: the toolkit would refuse it with a warning.
inline void setPtSize(QFont &font, double pt)
{
    const int most_px = 4096;
    const int px = pxPt(*ScalingInfo::inst(), pt);
    if (px >= 1)
        font.setPixelSize(qMin(px, most_px));
}

/// The application's font at \a pt points and \a weight (QFont::Weight).
inline QFont panelFont(double pt, int weight)
{
    QFont font;
    setPtSize(font, pt);
    font.setWeight(weight);
    return font;
}

} // namespace vexo::hox::qt::ui
