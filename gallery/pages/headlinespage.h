#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

/// VexoImageHeadline: icons, sizes, long texts, languages, and grounds from a stylesheet.
class HeadlinesPage : public Page
{
public:
    HeadlinesPage();

private:
    void addIcons();
    void addSizes();
    void addTexts();
    void addSheets();
};
