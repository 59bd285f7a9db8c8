#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

/// The rows of lists and settings screens: the types of VexoFunctionButton, long texts, and
/// VexoHorizontalTextIconButton.
class RowsPage : public Page
{
public:
    RowsPage();

private:
    void addCheckBoxes();
    void addActions();
    void addRadioButtons();
    void addFullRowChoices();
    void addAgreements();
    void addLongTexts();
    void addTextAndIcon();
};
