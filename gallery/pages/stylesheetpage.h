#pragma once

#include "gallery/page.h"

class QGridLayout;

/// Stock widgets that the panel's stylesheet changes, beside the same widgets without it, and the
/// rules that do it.
class StylesheetPage : public Page
{
public:
    StylesheetPage();

private:
    void addCheckBox();
    void addRadioButtons();
    void addSlider(Qt::Orientation orientation);
    QGridLayout *addComparison(const QString &heading);
    void addRules(const QString &widget, const QString &state = QString());

    const QString m_sheet;
};
