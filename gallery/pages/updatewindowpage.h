#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

/// UpdatePage as one of the screens, and UpdateMainWindow over the whole panel.
class UpdateWindowPage : public Page
{
public:
    UpdateWindowPage();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addUpdatePage();
    void addUpdateWindow();
    void openWindow();
};
