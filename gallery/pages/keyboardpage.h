#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

/// An on-screen keyboard that types into a line.
class KeyboardPage : public Page
{
public:
    KeyboardPage();
};
