// SPDX-License-Identifier: MIT
//! [page]
#include <VexoNumericButton>

#include <functional>

using namespace vexo::hox::qt::ui;

// 0 to 100 in steps of 10. The limits come before the value, which is clamped to them.
VexoNumericButton *createBrightnessStepper(const std::function<void(int)> &dim)
{
    auto *stepper = new VexoNumericButton;
    stepper->setMaximum(100);
    stepper->setStepSize(10);
    stepper->setValue(50); // emits nothing, a press does
    QObject::connect(stepper, &VexoNumericButton::valueChanged, stepper, dim);
    return stepper;
}
//! [page]
