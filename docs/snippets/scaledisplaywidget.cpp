// SPDX-License-Identifier: MIT
//! [page]
#include <ScaleDisplayWidget>

#include <QVBoxLayout>

using namespace vexo::hox::qt::ui;

// A scale of 56 mm, such as VexoSliderDecoration makes for its slider.
void addScale(QVBoxLayout *column)
{
    auto *scale = new ScaleDisplayWidget(Qt::Horizontal, 56);
    scale->setTextColor(VexoColors::C3);
    scale->setScaleText({ "0", "25", "50", "75", "100" });
    column->addWidget(scale, 0, Qt::AlignLeft); // as high as it asks for: 6 mm
}
//! [page]
