#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

/// Pages with a way back, with and without a slide.
class PageStackPage : public Page
{
public:
    PageStackPage();
};
