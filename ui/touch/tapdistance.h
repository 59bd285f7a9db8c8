#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"

namespace vexo::hox::qt::ui {

/// How far a finger may slip on a row (VexoFunctionButton), check box or radio button that still
/// clicks, the same for the whole application. Panel::setUp() sets it to 5 mm, the distance at
/// which a VexoVerticalScrollArea starts to scroll; so each slip in a list either clicks or
/// scrolls.
class HOXQUI_EXPORT TapDistance
{
public:
    TapDistance() = delete;

    /// In x and y, mm. Default 0: 10 px on rows, 8 px on boxes, whatever that is on the panel.
    static double mm();
    /// Holds for what is constructed afterwards, until a distance of its own is set there. 0 or
    /// less, and NaN, bring the pixels back.
    static void setMm(double mm);
};

} // namespace vexo::hox::qt::ui
