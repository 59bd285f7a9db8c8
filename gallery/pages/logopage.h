#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

/// VexoLogo in several widths, and VexoLogoLabel.
class LogoPage : public Page
{
public:
    LogoPage();

private:
    void addImages();
    void addLabels();
};
