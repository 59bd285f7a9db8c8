#pragma once
// SPDX-License-Identifier: MIT

class QString;

namespace vexo::hox::qt::ui {

/// Gives the application the stylesheet \a sheet. Put in place of another, the toolkit would polish
/// each widget once per level of its depth; with an empty sheet in between it does so once, and
/// that is what this does wherever nobody can tell: nothing is painted and no widget hears of it
/// before the new sheet is there. Each then gets one QEvent::StyleChange.
void changeSheet(const QString &sheet);

} // namespace vexo::hox::qt::ui
