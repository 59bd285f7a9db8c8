// SPDX-License-Identifier: MIT
//! [page]
#include <VexoLabeledContainer>
#include <VexoLineEdit>

using namespace vexo::hox::qt::ui;

// A field of a form, with its caption above.
VexoLabeledContainer *createField(const QString &caption, QWidget *form)
{
    auto *field = new VexoLabeledContainer(form, new VexoLineEdit);
    field->setLabelText(caption);
    return field;
}
//! [page]
