// SPDX-License-Identifier: MIT
//! [page]
#include <TapDistance>

using namespace vexo::hox::qt::ui;

// Part of Panel::setUp(), which takes it from its options. Without it: once, before the first row
// or box.
void useTapDistance()
{
    TapDistance::setMm(5);
}
//! [page]
