// SPDX-License-Identifier: MIT
#include "benchmarks/support/screen.h"

#include <QLineEdit>
#include <QVBoxLayout>

#ifdef HOXQ_BENCHMARK_LIBRARY
#include <OnScreenKeyboard>
#include <VexoKeyboardButton>
#else
#include <QToolButton>
#endif

namespace bench {

namespace {

#ifdef HOXQ_BENCHMARK_LIBRARY

using Keyboard = vexo::hox::qt::panel::OnScreenKeyboard;
using Button = vexo::hox::qt::ui::VexoKeyboardButton;

QWidget *createKeyboard(QLineEdit *line)
{
    auto *keyboard = new Keyboard;
    keyboard->setLanguages({ QStringLiteral("en") });
    keyboard->setReceiver(line);
    return keyboard;
}

#else

using Button = QToolButton;

// The same four rows of keys, which do no more than to insert their text.
QWidget *createKeyboard(QLineEdit *line)
{
    auto *keyboard = new QWidget;
    keyboard->setFixedHeight(450);
    auto *rows = new QVBoxLayout(keyboard);
    for (const char *keys : { "qwertyuiop", "asdfghjkl", "^zxcvbnm<", "1, .>" }) {
        auto *row = new QHBoxLayout;
        rows->addLayout(row);
        for (const char *key = keys; *key; ++key) {
            const QString text = QString(QLatin1Char(*key));
            auto *button = new Button;
            button->setText(text);
            button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
            row->addWidget(button);
            QObject::connect(button, &Button::clicked, line, [=] { line->insert(text); });
        }
    }
    return keyboard;
}

#endif

std::vector<QWidget *> lettersOf(const QWidget &keyboard)
{
    std::vector<QWidget *> letters;
    const auto buttons = keyboard.findChildren<Button *>();
    for (Button *button : buttons) {
        if (button->text().size() == 1 && button->text().at(0).isLetter())
            letters.push_back(button);
    }
    return letters;
}

} // namespace

Screen makeScreen()
{
    Screen screen;
    screen.window = std::make_unique<QWidget>();
    auto *line = new QLineEdit;
    line->setFocusPolicy(Qt::NoFocus); // without a cursor that blinks
    line->setInputMethodHints(Qt::ImhNoAutoUppercase);
    line->setMaxLength(20); // how long a text is costs more than what is typed
    auto *column = new QVBoxLayout(screen.window.get());
    column->addWidget(line);
    column->addStretch(1);
    QWidget *keyboard = createKeyboard(line);
    column->addWidget(keyboard);
    screen.actions = { fullRepaint(screen.window.get()), pressAndRelease(lettersOf(*keyboard)) };
    return screen;
}

#ifdef HOXQ_BENCHMARK_STOCK

QString stockStyleSheet()
{
    return QStringLiteral("QToolButton { border: 1px solid #999; border-top-color: white;"
                          " border-bottom: 2px solid #a0a0a0; border-radius: 7px;"
                          " background: #f5f5f5; color: #3c3c3c; font-size: 45px; }" // 13 pt
                          "QToolButton:pressed { background: #505050; color: white; }");
}

#endif

} // namespace bench
