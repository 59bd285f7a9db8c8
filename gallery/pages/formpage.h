#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

class TileLayout;

namespace vexo::hox::qt::ui {
class VexoLabeledContainer;
class VexoPushButton;
} // namespace vexo::hox::qt::ui

/// The settings of a device: a VexoLabeledContainer around each kind of payload, payloads that are
/// swapped and removed, and a visible buddy.
class FormPage : public Page
{
public:
    FormPage();

private:
    using Container = vexo::hox::qt::ui::VexoLabeledContainer;
    using Button = vexo::hox::qt::ui::VexoPushButton;

    void addTexts();
    void addSliders();
    void addControls();
    void addReplaced();
    void addSwap(TileLayout *tiles);
    void addRemoval(TileLayout *tiles);
    void addBuddy();
    void putAside(QWidget *payload);
};
