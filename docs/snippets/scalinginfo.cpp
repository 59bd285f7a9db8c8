// SPDX-License-Identifier: MIT
//! [page]
#include <ScalingInfo>

#include <QWidget>

using namespace vexo::hox::qt::ui;

// Where the screen reports wrong millimetres, and Panel::setUp() is not told either: before the
// first widget, say what it has.
void describePanel()
{
    ScalingInfo::inst()->setPixels(1280, 800);
    ScalingInfo::inst()->setSizeMM(160, 100);
}

// 40 x 12 mm on each panel; here 320 x 96 px.
void sizeField(QWidget *field)
{
    const QSizeF px = ScalingInfo::inst()->mm2px(QSizeF(40, 12));
    field->setFixedSize(int(px.width()), int(px.height()));
}
//! [page]
