#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

/// Sliders with end images, unit and scale.
class SlidersPage : public Page
{
public:
    SlidersPage();

private:
    void addStyles();
    void addSteps();
    void addUnits();
    void addImages();
    void addLooks();
};
