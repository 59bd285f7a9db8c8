#pragma once
// SPDX-License-Identifier: MIT

namespace vexo::hox::qt::panel {

/// Lets assistive technology take a PanelDialog for a dialog and a PanelNotice for an alert. Counts
/// once, until the library is unloaded.
void installRoles();

} // namespace vexo::hox::qt::panel
