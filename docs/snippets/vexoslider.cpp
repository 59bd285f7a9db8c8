// SPDX-License-Identifier: MIT
//! [page]
#include <VexoSlider>

#include <functional>

using namespace vexo::hox::qt::ui;

// 0, 5, 10 ... 100. A tick interval makes steps; finish the configuration at last.
VexoSlider *createVolumeSlider(const std::function<void(int)> &setVolume)
{
    auto *slider = new VexoSlider(Qt::Horizontal);
    slider->setMinimum(0);
    slider->setMaximum(100);
    slider->setTickInterval(5);
    slider->setValue(50);
    slider->finishSliderConfiguration();
    slider->setAccessibleName("Volume");
    QObject::connect(slider, &VexoSlider::valueChanged, slider, setVolume);
    return slider;
}
//! [page]
