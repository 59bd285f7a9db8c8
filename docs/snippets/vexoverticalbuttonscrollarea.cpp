// SPDX-License-Identifier: MIT
//! [page]
#include <VexoVerticalButtonScrollArea>

#include <QPushButton>

#include <functional>

using namespace vexo::hox::qt::ui;

// A touch of a letter jumps to its first entry.
VexoVerticalButtonScrollArea *createJumpBar(
    QWidget *list, const std::function<void(const QString &)> &jump)
{
    using Type = VexoVerticalButtonScrollArea::VexoVerticalButtonScrollAreaType;
    auto *bar = new VexoVerticalButtonScrollArea(list->parentWidget(), Type::AlphabeticWithHash);
    const QList<QPushButton *> letters = bar->findChildren<QPushButton *>("letterButton");
    for (QPushButton *letter : letters)
        QObject::connect(letter, &QPushButton::clicked, list, [=] { jump(letter->text()); });
    return bar;
}
//! [page]
