// SPDX-License-Identifier: MIT
#include "benchmarks/support/screen.h"

namespace bench {

void setUpFonts() { }

void setUpSheets() { }

} // namespace bench
