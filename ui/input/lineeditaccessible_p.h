#pragma once
// SPDX-License-Identifier: MIT

namespace vexo::hox::qt::ui {

/// From now on assistive technology sees each VexoLineEdit as the toolkit shows a line edit, except
/// that a secret one has no text to be read: the toolkit reports each change of a text with the
/// text itself, that of passwords too, to whoever may read it.
void makeLineEditsAccessible();

} // namespace vexo::hox::qt::ui
