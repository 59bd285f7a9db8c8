#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

/// A licence text of VexoTextEnumeration and device information of VexoHorizontalLabelWidget.
class TextRowsPage : public Page
{
public:
    TextRowsPage();

private:
    void addLicence();
    void addDeviceInfo();
};
