// SPDX-License-Identifier: MIT
//! [page]
#include <VexoLabel>
#include <VexoLineEdit>

using namespace vexo::hox::qt::ui;

// A caption over its field. Both appear with label->show() and go with label->hide().
VexoLabel *createCaption(const QString &text, VexoLineEdit *field)
{
    auto *label = new VexoLabel(text, field->parentWidget());
    label->setBackgroundColor(VexoColors::C2);
    label->setBuddy(field); // tells assistive technology what the field is called
    label->addVisibleBuddy(field); // hides it until label->show()
    return label;
}
//! [page]
