// SPDX-License-Identifier: MIT
//! [page]
#include <OnScreenKeyboard>

#include <QLineEdit>
#include <QVBoxLayout>

using vexo::hox::qt::panel::OnScreenKeyboard;

// A keyboard below a form: it types into the field that has the focus.
OnScreenKeyboard *createKeyboard(QVBoxLayout *form)
{
    auto *keyboard = new OnScreenKeyboard;
    keyboard->setLanguages({ "de", "en", "fr" });
    form->addWidget(keyboard);
    return keyboard;
}

// Digits only, and a key that hides the keyboard.
void askForNumber(OnScreenKeyboard *keyboard, QLineEdit *field)
{
    field->setInputMethodHints(Qt::ImhDigitsOnly);
    keyboard->setReceiver(field);
    keyboard->setHasHideKey(true);
    QObject::connect(keyboard, &OnScreenKeyboard::hideRequested, keyboard, &QWidget::hide);
}
//! [page]
