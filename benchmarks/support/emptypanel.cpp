// SPDX-License-Identifier: MIT
#include "benchmarks/support/screen.h"

namespace bench {

void setUpPanel() { }

} // namespace bench
