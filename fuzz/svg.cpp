// SPDX-License-Identifier: MIT
#include "fuzz/image.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    checkImage(data, size, vexo::hox::qt::ui::ImageFile::Kind::Vector);
    return 0;
}
