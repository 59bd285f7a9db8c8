// SPDX-License-Identifier: MIT
//! [page]
#include <CachedVectorIcon>
#include <VexoColors>
#include <VexoHorizontalTextIconButton>

using namespace vexo::hox::qt::ui;

// A row of two columns and an arrow, dark while it is pressed.
VexoHorizontalTextIconButton *createBrightnessRow(int percent)
{
    auto *row = new VexoHorizontalTextIconButton;
    row->setLeftSideText("Brightness");
    row->setRightSideText(QString("%1 %").arg(percent));
    row->setMmIndent(3);
    row->setDefaultTextColor(VexoColors::C3);
    row->setDefaultBackgroundColor(VexoColors::C1);
    row->setClickedBackgroundColor(VexoColors::C4); // its text stays white
    row->setDefaultImage(CachedVectorIcon(":/arrowListRightSvg", QSizeF(0, 6)).toPixmap());
    return row;
}
//! [page]
