#pragma once
// SPDX-License-Identifier: MIT

#include "ui/foundation/pixels_p.h"

#include <QFont>

namespace vexo::hox::qt::ui {

/// Gives \a font the height of \a pt points. A height below 1 px leaves it alone: the toolkit
/// would refuse it with a warning.
inline void setPtSize(QFont &font, double pt)
{
    const int px = pxPt(*ScalingInfo::inst(), pt);
    if (px >= 1)
        font.setPixelSize(px);
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
