// SPDX-License-Identifier: MIT
#include "ui/foundation/vexocolors.h"

namespace vexo::hox::qt::ui {

const QPen VexoColors::pen(VexoColors::C3);
const QPen VexoColors::inversePen(VexoColors::C0);

} // namespace vexo::hox::qt::ui
