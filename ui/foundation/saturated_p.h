#pragma once
// SPDX-License-Identifier: MIT

#include <QtGlobal>

#include <limits>

namespace vexo::hox::qt::ui {

/// The int that is nearest to \a number.
inline int saturated(qint64 number)
{
    using Limits = std::numeric_limits<int>;
    return int(qBound(qint64(Limits::min()), number, qint64(Limits::max())));
}

} // namespace vexo::hox::qt::ui
