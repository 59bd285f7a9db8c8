#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

/// Questions over a screen in the page, by day and by night, and over the whole window.
class DialogPage : public Page
{
public:
    DialogPage();
};
