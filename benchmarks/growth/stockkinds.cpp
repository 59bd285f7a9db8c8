// SPDX-License-Identifier: MIT
#include "benchmarks/growth/growth.h"

#include "benchmarks/support/screen.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

namespace bench {

namespace {

QWidget *makeRow()
{
    auto *row = new QPushButton(QStringLiteral("Wireless network"));
    row->setObjectName(QStringLiteral("row"));
    row->setFixedHeight(98);
    return row;
}

QWidget *makeIconButton()
{
    auto *button = new QToolButton;
    button->setIconSize(QSize(60, 60));
    button->setIcon(QIcon(QStringLiteral(":/widgetimages/back.svg")));
    return button;
}

QWidget *makePushButton()
{
    auto *button = new QPushButton(QStringLiteral("Language"));
    button->setFixedHeight(120);
    return button;
}

QWidget *makeLabel()
{
    auto *label = new QLabel(QStringLiteral("Language"));
    label->setFixedHeight(50);
    return label;
}

QWidget *makeLineEdit()
{
    auto *field = new QLineEdit(QStringLiteral("Language"));
    field->setFixedHeight(61);
    return field;
}

} // namespace

void restyle()
{
    qApp->setStyleSheet(stockStyleSheet() + QLatin1String("MainWindow { background: black; }"));
}

std::vector<Kind> kinds()
{
    return { { "rows", [](int count) { return makeColumn(count, makeRow); } },
        { "iconbuttons", [](int count) { return makeColumn(count, makeIconButton); } },
        { "pushbuttons", [](int count) { return makeColumn(count, makePushButton); } },
        { "labels", [](int count) { return makeColumn(count, makeLabel); } },
        { "lineedits", [](int count) { return makeColumn(count, makeLineEdit); } } };
}

} // namespace bench
