#pragma once
// SPDX-License-Identifier: MIT

#include "ui/buttons/buttonstate.h"
#include "ui/foundation/cachedvectoricon.h"

#include <QMap>

namespace vexo::hox::qt::ui {

using StateImages = QMap<ButtonState, CachedVectorIcon>;

/// Of which image a button has need.
ButtonState imageState(bool is_hidden, bool is_enabled, bool is_down);
/// Renders the image of \a state, in place of an earlier one. Throws as CachedVectorIcon does;
/// nothing has changed then.
const CachedVectorIcon &renderImage(
    StateImages *images, const QString &path, const QSizeF &mm, ButtonState state);
/// The image of \a state, or else that of Standard. Throws std::logic_error without both.
CachedVectorIcon &imageOf(StateImages *images, ButtonState state);
/// The same, but null where there are no images but one that is shown only when hidden.
const QIcon *shownImage(StateImages *images, ButtonState state);

} // namespace vexo::hox::qt::ui
