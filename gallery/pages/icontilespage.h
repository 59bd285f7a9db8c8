#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

/// Tiles of fixed size with a centred icon that is pressed.
class IconTilesPage : public Page
{
public:
    IconTilesPage();

private:
    void addPressed();
    void addStates();
    void addMeasures();
};
