// SPDX-License-Identifier: MIT
#include "gallery/pages/stepperpage.h"

#include "gallery/measures.h"
#include "gallery/widgets/ground.h"
#include "gallery/widgets/tilelayout.h"

#include <VexoColors>
#include <VexoNumericButton>

#include <QLabel>
#include <QVBoxLayout>

using namespace vexo::hox::qt::ui;

namespace {

struct Range
{
    QString caption;
    int minimum;
    int maximum;
    int step;
    int value;
};

VexoNumericButton *createStepper(const Range &range)
{
    auto *stepper = new VexoNumericButton;
    setGround(stepper, VexoColors::C1);
    stepper->setFixedHeight(mmY(12));
    stepper->setMinimum(range.minimum);
    stepper->setMaximum(range.maximum);
    stepper->setStepSize(range.step);
    stepper->setValue(range.value);
    return stepper;
}

} // namespace

StepperPage::StepperPage()
    : Page("Stepper",
        "Minus and plus change the number by its step. A step beyond a limit lands on the limit, "
        "and the button of that direction is disabled.")
{
    QLabel *signal = createText("The last signal appears here.", 7, QFont::Normal);
    addSection("Ranges and steps");
    addBlock(signal);
    TileLayout *tiles = addTiles(70, { 4, 6 });
    const auto add = [&](const Range &range) {
        VexoNumericButton *stepper = createStepper(range);
        connect(stepper, &VexoNumericButton::valueChanged, signal,
            [=](int value) { signal->setText(QString("valueChanged(%1)").arg(value)); });
        tiles->addLayout(createCaptioned(stepper, range.caption));
        return stepper;
    };
    add({ "0 to 100 by 10", 0, 100, 10, 50 });
    add({ "0 to 10 by 4, at its maximum", 0, 10, 4, 10 });
    add({ "-20 to 20 by 1, at its minimum", -20, 20, 1, -20 });
    add({ "0 to 1000000 by 250000", 0, 1000000, 250000, 500000 });
    add({ "red", -9, 9, 1, 1 })->setTextColor(VexoColors::C9);
    VexoNumericButton *disabled = add({ "disabled", 0, 10, 1, 5 });
    disabled->setTextColor(VexoColors::C6);
    disabled->setEnabled(false);
}
