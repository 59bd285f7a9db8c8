#pragma once
// SPDX-License-Identifier: MIT

#include "uitest/widgetwalk_p.h"

namespace vexo::hox::qt::uitest {

/// The enabled widgets in \a window that take presses, as a user counts them: not the check box of
/// a row that toggles it, and no ground that holds others.
Widgets touchTargets(QWidget *window);

} // namespace vexo::hox::qt::uitest
