// SPDX-License-Identifier: MIT
#include "gallery/pages/keyboardpage.h"

#include "gallery/measures.h"

#include <OnScreenKeyboard>
#include <VexoColors>
#include <VexoKeyboardButton>

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

using namespace vexo::hox::qt::ui;
using vexo::hox::qt::panel::OnScreenKeyboard;

namespace {

QLineEdit *createLine()
{
    auto *line = new QLineEdit;
    const QString sheet = "QLineEdit { background: %1; color: %2; border: %3px solid %4;"
                          " padding: 0 %5px; }";
    line->setStyleSheet(sheet.arg(VexoColors::C0.name(), VexoColors::C3.name())
                            .arg(mmX(0.2))
                            .arg(VexoColors::C12.name())
                            .arg(mmX(2)));
    line->setObjectName("keyboardLine");
    line->setAccessibleName("What was typed");
    line->setFont(ptFont(13));
    line->setFixedHeight(mmY(10));
    line->setPlaceholderText(QString::fromUtf8("Grüße 2026"));
    return line;
}

// The ground on which a keyboard lies, as wide as the page.
QWidget *createTray(QLineEdit *line, QWidget *keyboard)
{
    auto *tray = new QWidget;
    tray->setAutoFillBackground(true);
    tray->setPalette(VexoColors::C6);
    auto *layout = new QVBoxLayout(tray);
    layout->setContentsMargins(mmX(2), mmY(2), mmX(2), mmY(2));
    layout->setSpacing(mmY(2));
    layout->addWidget(line);
    layout->addWidget(keyboard);
    return tray;
}

VexoKeyboardButton *createKey(const QString &name)
{
    auto *key = new VexoKeyboardButton;
    key->setObjectName(name);
    key->setText("a");
    key->setFixedWidth(mmX(10));
    return key;
}

} // namespace

KeyboardPage::KeyboardPage()
    : Page("Keyboard",
        "An OnScreenKeyboard of VexoKeyboardButtons. Shift holds for one letter, tapped twice for "
        "all; a held letter offers its variants; a swipe across the space bar changes the "
        "language.")
{
    addSection("Nine languages, digits and symbols");
    QLineEdit *line = createLine();
    auto *keyboard = new OnScreenKeyboard;
    keyboard->setLanguages(OnScreenKeyboard::builtInLanguages());
    keyboard->setReceiver(line);
    connect(line, &QLineEdit::returnPressed, line, &QLineEdit::clear);
    addBlock(createTray(line, keyboard));

    addSection("Looks of a key");
    auto *row = new QHBoxLayout;
    row->setSpacing(mmX(3));
    row->setAlignment(Qt::AlignLeft);
    for (const char *look : { "standard", "special", "latched", "disabled", "plain border" }) {
        VexoKeyboardButton *key = createKey(
            qstrcmp(look, "special") == 0 ? "other" : VexoKeyboardButton::STANDARD_KEY_OBJECT_NAME);
        key->setCheckable(true);
        key->setChecked(qstrcmp(look, "latched") == 0);
        key->setEnabled(qstrcmp(look, "disabled") != 0);
        key->setStandardBorderDrawingDisabled(qstrcmp(look, "plain border") != 0);
        auto *column = new QVBoxLayout;
        column->addWidget(key);
        column->addWidget(createText(look));
        row->addLayout(column);
    }
    addBlock(row);
}
