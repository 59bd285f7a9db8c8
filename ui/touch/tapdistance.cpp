// SPDX-License-Identifier: MIT
#include "ui/touch/tapdistance.h"

namespace vexo::hox::qt::ui {

namespace {

double common_mm = 0;

} // namespace

double TapDistance::mm()
{
    return common_mm;
}

void TapDistance::setMm(double mm)
{
    common_mm = mm > 0 ? mm : 0;
}

} // namespace vexo::hox::qt::ui
