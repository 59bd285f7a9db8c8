#pragma once
// SPDX-License-Identifier: MIT

#include "screen.h"

/// What somebody who calls the service is asked for.
class InfoScreen : public Screen
{
    Q_OBJECT

public:
    explicit InfoScreen(PanelWindow *panel);

private:
    void addValue(QVBoxLayout *list, const Text &name, const Text &value);
};
