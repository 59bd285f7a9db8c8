#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

class QGridLayout;

/// Widgets that the panel's stylesheets change, beside the same widgets without them, and the rules
/// that do it.
class StylesheetPage : public Page
{
public:
    StylesheetPage();

private:
    void addCheckBox();
    void addRadioButtons();
    void addSlider(Qt::Orientation orientation);
    void addJumpBar();
    void addContainer();
    QGridLayout *addComparison(const QString &heading);
    void addRules(const QString &widget, const QString &state = QString());

    const QString m_sheets;
};
