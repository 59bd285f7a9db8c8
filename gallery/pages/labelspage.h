#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

/// VexoLabel: sizes, colours, alignments, and a field that comes and goes with its caption.
class LabelsPage : public Page
{
public:
    LabelsPage();

private:
    void addSizes();
    void addColors();
    void addAlignments();
    void addLanguages();
    void addBuddies();
};
