// SPDX-License-Identifier: MIT
//! [page]
#include <VexoFunctionButton>

#include <QButtonGroup>
#include <QVBoxLayout>

#include <functional>

using namespace vexo::hox::qt::ui;

// A row with an arrow: a tap leads to another screen, a swipe does not.
VexoFunctionButton *createNetworkRow(const std::function<void()> &show_screen)
{
    auto *row = new VexoFunctionButton(nullptr, VexoFunctionButton::ActionType);
    row->setText("Network");
    QObject::connect(row, &VexoFunctionButton::clicked, row, show_screen);
    return row;
}

// Rows with radio buttons exclude each other in a group.
void addToneRows(QVBoxLayout *list, QButtonGroup *group)
{
    for (const char *tone : { "Short", "Long", "None" }) {
        auto *row = new VexoFunctionButton(nullptr, VexoFunctionButton::RadiobuttonType);
        row->setText(tone);
        group->addButton(row->getButtonInstance());
        list->addWidget(row);
    }
}

// Rows that are the choice themselves exclude each other below a parent of their own.
void fillLanguageRows(QWidget *rows, QVBoxLayout *column)
{
    for (const char *language : { "Deutsch", "English" }) {
        auto *row = new VexoFunctionButton(rows, VexoFunctionButton::FullsizeRadiobuttonType);
        row->setText(language);
        column->addWidget(row);
    }
}
//! [page]
