// SPDX-License-Identifier: MIT
//! [page]
#include <VexoPushButton>

using namespace vexo::hox::qt::ui;

// Standard serves each state without an image of its own: this button shows a plus, while it is
// pressed a filled one, and the plain one also while it is disabled.
void setPlus(VexoPushButton *button)
{
    const QString image = ":/widgetimages/Icons_Round_Small/RoundButton_S_Plus_%1.svg";
    button->setSvgImage(image.arg("Active"), Standard);
    button->setSvgImage(image.arg("Pressed"), Clicked);
}

// The same with an image of 5 x 5 mm, and nothing while it is disabled.
void setLargePlus(VexoPushButton *button)
{
    const QString image = ":/widgetimages/Icons_Round_Small/RoundButton_S_Plus_%1.svg";
    const QSizeF mm(5, 5);
    button->setSvgImage(image.arg("Active"), mm, Standard);
    button->setSvgImage(":/widgetimages/VexoIconEmpty.svg", mm, Inactive);
}
//! [page]
