#pragma once
// SPDX-License-Identifier: MIT

#include <QLayout>

namespace vexo::hox::qt::ui {

/// Takes the toolkit's gaps out of \a layout; \a side_margin_px stays at the left and at the right.
inline void tighten(QLayout *layout, int side_margin_px = 0)
{
    layout->setSpacing(0);
    layout->setContentsMargins(side_margin_px, 0, side_margin_px, 0);
}

} // namespace vexo::hox::qt::ui
