#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"

#include <QColor>
#include <QPen>

namespace vexo::hox::qt::ui {

/// The panel's palette: fourteen opaque colours and two pens made from them. The library's own
/// widgets use C0 to C6, C12 and C13; the rest and the pens are for applications.
class HOXQUI_EXPORT VexoColors
{
public:
    VexoColors() = delete;

    static constexpr QColor C0{ 255, 255, 255 }; ///< white: text and icons on dark ground
    static constexpr QColor C1{ 245, 245, 245 }; ///< ground of buttons, rows and fields
    static constexpr QColor C2{ 235, 235, 235 }; ///< ground of labels
    static constexpr QColor C3{ 60, 60, 60 }; ///< dark: text, icons, outlines
    static constexpr QColor C4{ 80, 80, 80 }; ///< ground of what is pressed or checked
    static constexpr QColor C5{ 160, 160, 160 }; ///< secondary text, lines
    static constexpr QColor C6{ 200, 200, 200 }; ///< what is disabled
    static constexpr QColor C7{ 190, 220, 0 }; ///< lime
    static constexpr QColor C8{ 255, 150, 0 }; ///< orange
    static constexpr QColor C9{ 220, 60, 60 }; ///< red
    static constexpr QColor C10{ 120, 180, 240 }; ///< blue
    static constexpr QColor C11{ 140, 135, 90 }; ///< olive
    static constexpr QColor C12{ 180, 180, 180 }; ///< outline of push buttons
    static constexpr QColor C13{ 220, 220, 220 }; ///< ground of special keys

    static const QPen pen; ///< solid, 1 px, C3
    static const QPen inversePen; ///< solid, 1 px, C0: for drawing on dark ground
};

} // namespace vexo::hox::qt::ui
