#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

/// The four weights of the panel's font in the sizes that its screens use, and its fallback.
class TypePage : public Page
{
public:
    TypePage();

private:
    void addWeights(double pt);
    void addLanguages();
};
