// SPDX-License-Identifier: MIT
//! [page]
#include <VexoSlider>
#include <VexoSliderDecoration>

using namespace vexo::hox::qt::ui;

// Takes the slider and finishes its configuration. Images come before the unit or instead of it:
// the unit stands where the maximum image does.
VexoSliderDecoration *decorate(VexoSlider *slider)
{
    auto *decoration
        = new VexoSliderDecoration(nullptr, VexoSliderDecoration::HorizontalWithScale, slider);
    decoration->setScaleText({ "0", "50", "100" });
    decoration->setMinImage(":/widgetimages/back.svg", 0, 4); // 4 mm high
    decoration->setSliderUnit(" %");
    return decoration;
}
//! [page]
