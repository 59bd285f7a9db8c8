#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

/// The fourteen colours of VexoColors and its two pens.
class PalettePage : public Page
{
public:
    PalettePage();
};
