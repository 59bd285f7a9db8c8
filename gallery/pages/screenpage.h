#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

/// Known lengths to lay a ruler on, and what the doctor says of the panel's size.
class ScreenPage : public Page
{
public:
    ScreenPage();
};
