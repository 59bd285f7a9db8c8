// SPDX-License-Identifier: MIT
//! [page]
#include <VexoRadioButton>

#include <QVBoxLayout>

using namespace vexo::hox::qt::ui;

// Those below one parent exclude each other; a swipe across them chooses none.
void fillUnitChoice(QWidget *choice, QVBoxLayout *column)
{
    for (const char *unit : { "Celsius", "Fahrenheit" }) {
        auto *button = new VexoRadioButton(choice);
        button->setText(unit);
        column->addWidget(button);
    }
}
//! [page]
