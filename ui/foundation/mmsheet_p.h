#pragma once
// SPDX-License-Identifier: MIT

#include <QString>

namespace vexo::hox::qt::ui {

class ScalingInfo;

/// The text of Panel::mmSheet() at the scale of \a scaling.
QString mmSheetText(const ScalingInfo &scaling);

} // namespace vexo::hox::qt::ui
