// SPDX-License-Identifier: MIT
//! [page]
#include <VexoLogo>

using namespace vexo::hox::qt::ui;

// The boot picture, straight into a frame buffer of 32 bits per pixel: the logo, 60 mm wide.
void drawBootPicture(unsigned int *frame_buffer, unsigned int width, unsigned int height)
{
    VexoLogo logo(width, height, frame_buffer, ":/widgetimages/vexo.svg");
    logo.paint(60);
}
//! [page]
