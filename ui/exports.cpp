// SPDX-License-Identifier: MIT
// Inline functions of the public headers, written out as symbols: an application that was built
// against headers which only declare them links, too. The compiler is told to keep them (see
// CMakeLists.txt); calls through the headers stay inline.
#include "ui/publicclasses.h"

namespace vexo::hox::qt::ui {

namespace {

// The palette's colours that no widget of the library uses.
[[gnu::used]] const QColor *const kept_colors[]
    = { &VexoColors::C7, &VexoColors::C8, &VexoColors::C9, &VexoColors::C10, &VexoColors::C11 };

} // namespace

} // namespace vexo::hox::qt::ui
