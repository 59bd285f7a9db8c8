#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

/// The toolkit's own widgets in the panel's ready sheets, by day and by night.
class MmSheetsPage : public Page
{
public:
    MmSheetsPage();
};
