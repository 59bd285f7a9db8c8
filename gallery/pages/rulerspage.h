#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

/// The fifteen styles of VexoRuler on three grounds, and VexoLineSpacer in both directions.
class RulersPage : public Page
{
public:
    RulersPage();

private:
    void addStyles();
    void addWhiteSpace();
    void addSpacers();
};
