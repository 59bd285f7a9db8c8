#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

/// A screen in the page that darkens at once, or when nobody touches it.
class DimmerPage : public Page
{
public:
    DimmerPage();
};
