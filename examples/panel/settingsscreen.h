#pragma once
// SPDX-License-Identifier: MIT

#include "screen.h"

namespace vexo::hox::qt::ui {
class VexoFunctionButton;
class VexoSlider;
} // namespace vexo::hox::qt::ui

/// The look, what happens when nobody touches the panel, and how screens change.
class SettingsScreen : public Screen
{
    Q_OBJECT

public:
    explicit SettingsScreen(PanelWindow *panel);

private:
    using Row = vexo::hox::qt::ui::VexoFunctionButton;
    using Slider = vexo::hox::qt::ui::VexoSlider;

    void addHeading(const Text &text);
    void addRow(QWidget *row);
    void dressRow(Row *row) const;
    Row *addSwitch(const Text &text, bool is_on);
    QWidget *createLabelled(const Text &text, QWidget *control, double mm);
    Row *addWay(const Text &text);
    Slider *addSlider(const Text &text, const QString &unit, int step, int maximum, int value);
    void addLook();
    void addLanguages();
    void addDimming();
    void addDelay();
    void addScreens();
    void askForReset();

    QVBoxLayout *m_list = nullptr;
};
