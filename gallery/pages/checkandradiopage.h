#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

/// Check boxes and radio buttons with the panel's stylesheets, without them, and with a sheet of a
/// parent.
class CheckAndRadioPage : public Page
{
public:
    CheckAndRadioPage();

private:
    void addComparison();
    void addParentSheet();
};
