#pragma once
// SPDX-License-Identifier: MIT

#include "panel/hoxqpanel_export.h"

#include <QStringList>

namespace vexo::hox::qt::panel {

/// What is wrong with the size that the screen reports.
class HOXQPANEL_EXPORT ScreenDoctor
{
public:
    /// One sentence per fault of the scale in use; empty for a healthy screen.
    static QStringList findings();
};

} // namespace vexo::hox::qt::panel
