// SPDX-License-Identifier: MIT
//! [page]
#include <VexoLineEdit>

using namespace vexo::hox::qt::ui;

// Four digits, shown as dots: a wrong PIN shakes although the field is cleared at once.
VexoLineEdit *createPinField(const QString &pin)
{
    auto *field = new VexoLineEdit;
    field->setAccessibleName("PIN");
    field->setMaxLength(4);
    field->setDrawPasswordSecured(true);
    QObject::connect(field, &VexoLineEdit::textChanged, field, [=](const QString &text) {
        if (text.size() < 4)
            return;
        field->repaint(); // what was painted last shakes: with the fourth dot
        field->clear();
        if (text != pin)
            field->shake(600, 5, 8, false);
    });
    return field;
}

// A field with its own delete button; a key of the panel types at the end.
VexoLineEdit *createNameField(QWidget *keyboard)
{
    auto *field = new VexoLineEdit;
    field->setPlaceholderText("Name");
    field->setTrailingIcon(QIcon(":/VexoIconGeneralReset"));
    field->enableTrailingButtonAction();
    QObject::connect(field, &VexoLineEdit::deleteButtonClick, field, [=] {
        field->end(false); // a touch may have moved the toolkit's cursor
        field->backspace();
    });
    QObject::connect(field, &VexoLineEdit::textEditWanted, keyboard, &QWidget::show);
    return field;
}
//! [page]
