#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

/// Large tiles, from one to four columns.
class TilesPage : public Page
{
public:
    TilesPage();

private:
    void addColumns();
    void addToggles();
};
