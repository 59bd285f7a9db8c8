// SPDX-License-Identifier: MIT
//! [page]
#include <VexoHorizontalLabelWidget>

using namespace vexo::hox::qt::ui;

// A line of device information, dark on white, in columns of 40 and 60 mm.
VexoHorizontalLabelWidget *createInfo(const QString &name, const QString &value, QWidget *parent)
{
    auto *row = new VexoHorizontalLabelWidget(parent);
    row->setLeftLabelMmWidth(40);
    row->setRightLabelMmWidth(60);
    row->setMmHeight(6);
    row->setPtFontSize(9);
    row->setTextColor(VexoColors::C3);
    row->setBackgroundColor(VexoColors::C0);
    row->setLeftLabelText(name);
    row->setRightLabelText(value);
    return row;
}
//! [page]
