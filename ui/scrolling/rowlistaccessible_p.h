#pragma once
// SPDX-License-Identifier: MIT

namespace vexo::hox::qt::ui {

/// From now on assistive technology sees the content of each RowList as a list of the rows that
/// there are, in their order.
void makeRowListsAccessible();

} // namespace vexo::hox::qt::ui
