// SPDX-License-Identifier: MIT
//! [page]
#include <VexoKeyboardButton>

#include <QAction>
#include <QLineEdit>

using namespace vexo::hox::qt::ui;

// A letter key: types at each tap.
VexoKeyboardButton *createLetterKey(const QString &letter, QLineEdit *line)
{
    auto *key = new VexoKeyboardButton;
    key->setObjectName(VexoKeyboardButton::STANDARD_KEY_OBJECT_NAME);
    key->setText(letter);
    QObject::connect(key, &VexoKeyboardButton::clicked, line, [=] { line->insert(letter); });
    return key;
}

// A special key: deletes at the press, and every 150 ms while it is held.
VexoKeyboardButton *createDeleteKey(QLineEdit *line)
{
    auto *key = new VexoKeyboardButton;
    key->addIcon(ActiveButton::DEFAULT_STATE_NAME, ":/VexoIconGeneralReset");
    key->addInverseIcon(ActiveButton::DEFAULT_STATE_NAME, ":/VexoIconGeneralResetC0");
    auto *backspace = new QAction(key); // a pulse calls a slot
    QObject::connect(backspace, &QAction::triggered, line, &QLineEdit::backspace);
    QObject::connect(key, &VexoKeyboardButton::pressed, backspace, &QAction::trigger);
    key->pulse(150, backspace, SLOT(trigger()));
    key->enablePulse(true);
    return key;
}
//! [page]
