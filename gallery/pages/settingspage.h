#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

class QVBoxLayout;

namespace vexo::hox::qt::ui {
class VexoFunctionButton;
class VexoNumericButton;
class VexoPushButton;
} // namespace vexo::hox::qt::ui

/// A screen as a product has it: a headline, rows in a list that scrolls by finger, and a button
/// that an agreement enables.
class SettingsPage : public Page
{
public:
    SettingsPage();

private:
    using Row = vexo::hox::qt::ui::VexoFunctionButton;

    QWidget *createList();
    QWidget *createFoot();
    void addDisplay(QVBoxLayout *list);
    void addLanguages(QVBoxLayout *list);
    void addTones(QVBoxLayout *list);
    void addService(QVBoxLayout *list);
    void askForReset();
    void restoreDefaults();

    QLabel *m_status;
    vexo::hox::qt::ui::VexoPushButton *m_continue;
    vexo::hox::qt::ui::VexoNumericButton *m_brightness;
    Row *m_night_mode = nullptr;
    Row *m_english = nullptr;
    Row *m_short_tone = nullptr;
    Row *m_agreement = nullptr;
};
