// SPDX-License-Identifier: MIT
#include "benchmarks/growth/growth.h"

#include <VexoFunctionButton>
#include <VexoIconButton>
#include <VexoLabel>
#include <VexoLineEdit>
#include <VexoPushButton>
#include <VexoStylesheet>
#include <VexoVerticalScrollArea>
#include <VexoVerticalScrollContent>

#include <QLayout>

using namespace vexo::hox::qt::ui;

namespace bench {

namespace {

QWidget *makeRows(int count)
{
    auto *list = new VexoVerticalScrollArea;
    auto *content = new VexoVerticalScrollContent;
    for (int i = 0; i < count; ++i) {
        auto *row = new VexoFunctionButton(nullptr, VexoFunctionButton::ActionType);
        row->setText(QStringLiteral("Wireless network"));
        content->layout()->addWidget(row);
    }
    list->setWidget(content);
    return list;
}

QWidget *makeIconButton()
{
    auto *button = new VexoIconButton;
    button->setMmIconSize(QSizeF(6, 6));
    button->addIcon(QStringLiteral("DEFAULT"), QStringLiteral(":/widgetimages/back.svg"));
    return button;
}

QWidget *makePushButton()
{
    auto *button = new VexoPushButton;
    button->setText(QStringLiteral("Language"));
    return button;
}

QWidget *makeLabel()
{
    return new VexoLabel(QStringLiteral("Language"));
}

QWidget *makeLineEdit()
{
    auto *field = new VexoLineEdit;
    field->setText(QStringLiteral("Language"));
    return field;
}

} // namespace

void restyle()
{
    VexoStylesheet sheet(QStringList{ ":/css/vexo-AAL.qs", ":/css/hoxq.qs" }, false);
    sheet.addText(QStringLiteral("MainWindow { background: black; }"));
    sheet.set();
}

std::vector<Kind> kinds()
{
    return { { "rows", makeRows },
        { "iconbuttons", [](int count) { return makeColumn(count, makeIconButton); } },
        { "pushbuttons", [](int count) { return makeColumn(count, makePushButton); } },
        { "labels", [](int count) { return makeColumn(count, makeLabel); } },
        { "lineedits", [](int count) { return makeColumn(count, makeLineEdit); } } };
}

} // namespace bench
