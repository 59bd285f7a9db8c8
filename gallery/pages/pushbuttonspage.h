#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

/// Push buttons in their looks: outline, images, second text, two lines, states, colours.
class PushButtonsPage : public Page
{
public:
    PushButtonsPage();

private:
    void addOutlines();
    void addImages();
    void addHiddenImage();
    void addTexts();
    void addStates();
    void addColors();
};
