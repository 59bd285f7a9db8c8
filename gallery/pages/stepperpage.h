#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

/// The number stepper with different ranges, steps and colours.
class StepperPage : public Page
{
public:
    StepperPage();
};
