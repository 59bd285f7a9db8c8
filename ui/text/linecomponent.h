#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"

#include <QColor>

namespace vexo::hox::qt::ui {

/// One line of a VexoRuler.
struct HOXQUI_EXPORT LineComponent
{
    QColor color; ///< of the line
    int thickness = 0; ///< px; what is below 1 is drawn 1 px high, over the next line
};

} // namespace vexo::hox::qt::ui
