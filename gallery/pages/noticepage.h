#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

/// A line that comes and goes at the edges of a screen in the page.
class NoticePage : public Page
{
public:
    NoticePage();
};
