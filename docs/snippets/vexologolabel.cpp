// SPDX-License-Identifier: MIT
//! [page]
#include <ScalingInfo>
#include <VexoLogoLabel>

using namespace vexo::hox::qt::ui;

// The library's logo, pixel for pixel: its file is 150 x 40 px large.
VexoLogoLabel *createLogo(QWidget *parent)
{
    auto *logo = new VexoLogoLabel(parent, ScalingInfo::inst()->px2mm_X(150), 150, 40,
        QImage::Format_RGB32, ":/widgetimages/vexo.svg");
    logo->setFixedSize(150, 40);
    logo->setAccessibleName("vexo");
    return logo;
}
//! [page]
