// SPDX-License-Identifier: MIT
#include "benchmarks/support/screen.h"

#include <QLabel>
#include <QVBoxLayout>

#ifdef HOXQ_BENCHMARK_LIBRARY
#include <VexoFunctionButton>
#else
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#endif

namespace bench {

namespace {

enum class Kind { Action, Check, Radio };

#ifdef HOXQ_BENCHMARK_LIBRARY

using namespace vexo::hox::qt::ui;

QWidget *makeRow(const QString &text, Kind kind)
{
    const VexoFunctionButton::VexoFunctionButtonType types[] = { VexoFunctionButton::ActionType,
        VexoFunctionButton::CheckboxType, VexoFunctionButton::RadiobuttonType };
    auto *row = new VexoFunctionButton(nullptr, types[int(kind)]);
    row->setText(text);
    return row;
}

#else

// What has a box is a button around a text and the box: alone, a box shows its text beside it.
QWidget *makeRow(const QString &text, Kind kind)
{
    QAbstractButton *row = nullptr;
    if (kind == Kind::Action)
        row = new QPushButton(text);
    else
        row = new QToolButton;
    row->setFixedHeight(98);
    if (kind == Kind::Action)
        return row;
    row->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto *label = new QLabel(text);
    label->setIndent(30);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 20, 0);
    layout->addWidget(label, 1);
    if (kind == Kind::Check)
        layout->addWidget(new QCheckBox);
    else
        layout->addWidget(new QRadioButton);
    return row;
}

#endif

QLabel *makeHeadline()
{
    auto *headline = new QLabel(QStringLiteral("Settings"));
    headline->setIndent(30);
    headline->setFixedHeight(80);
    return headline;
}

QWidget *makeSeparator()
{
    auto *line = new QWidget;
    line->setFixedHeight(1);
    line->setAutoFillBackground(true);
    line->setPalette(QColor(200, 200, 200));
    return line;
}

} // namespace

Screen makeScreen()
{
    const char *const titles[] = { "Wireless network", "Display and brightness", "Sound",
        "Date and time", "Language", "Software update", "User accounts", "About this device" };
    Screen screen;
    screen.window = std::make_unique<QWidget>();
    auto *layout = new QVBoxLayout(screen.window.get());
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(makeHeadline());
    std::vector<QWidget *> actions;
    for (int i = 0; i < 12; ++i) {
        const Kind kind = i % 3 < 1 ? Kind::Check : i % 6 < 5 ? Kind::Action : Kind::Radio;
        QWidget *row = makeRow(QLatin1String(titles[i % 8]), kind);
        layout->addWidget(makeSeparator());
        layout->addWidget(row);
        if (kind == Kind::Action)
            actions.push_back(row);
    }
    screen.actions = { fullRepaint(screen.window.get()), pressAndRelease(actions) };
    return screen;
}

#ifdef HOXQ_BENCHMARK_STOCK

QString stockStyleSheet()
{
    return QStringLiteral(
        "QPushButton { border: none; color: #3c3c3c; padding: 0 30px; text-align: left;"
        " font: 500 31px; background: #f5f5f5; image: url(%1_C3.svg); image-position: right; }"
        "QPushButton:pressed { color: white; background: #505050; image: url(%1_C0.svg); }"
        "QToolButton { border: none; background: #f5f5f5; }"
        "QToolButton QLabel { color: #3c3c3c; font: 500 31px; }"
        "QCheckBox::indicator:unchecked { image: url(:/cb_unchecked); }"
        "QCheckBox::indicator:checked { image: url(:/cb_checked); }"
        "QRadioButton::indicator:unchecked { image: url(:/rb_unchecked); }"
        "QRadioButton::indicator:checked { image: url(:/rb_checked); }")
        .arg(QStringLiteral(":/widgetimages/VexoIconGeneralArrowListRight_44px"));
}

#endif

} // namespace bench
