// SPDX-License-Identifier: MIT
#include "benchmarks/support/screen.h"

#include <QGridLayout>
#include <QToolButton>

#ifdef HOXQ_BENCHMARK_LIBRARY
#include <CachedVectorIcon>
#include <MeasuredPushButton>
#endif

namespace bench {

namespace {

const QSize icon_px(47, 47); // 4.7 mm

#ifdef HOXQ_BENCHMARK_LIBRARY

using Button = vexo::hox::qt::ui::MeasuredPushButton;

QIcon icon(const QString &file)
{
    return vexo::hox::qt::ui::CachedVectorIcon(file, QSizeF(4.7, 4.7));
}

#else

using Button = QToolButton;

QIcon icon(const QString &file)
{
    return QIcon(file);
}

#endif

QString iconFile(int index)
{
    const char *const files[] = { "RoundButton_S_Tick_Active", "RoundButton_S_Tick_Inactive",
        "RoundButton_S_X_Active", "Icons_Round_Small/RoundButton_S_Minus_Active",
        "Icons_Round_Small/RoundButton_S_Plus_Active" };
    return QStringLiteral(":/widgetimages/%1.svg").arg(QLatin1String(files[index % 5]));
}

QWidget *addButton(QGridLayout *layout, int index)
{
    auto *button = new Button;
    button->setIcon(icon(iconFile(index)));
    button->setIconSize(icon_px);
    button->setFixedSize(140, 140);
    button->setAutoRaise(true);
    layout->addWidget(button, index / 8, index % 8);
    return button;
}

} // namespace

Screen makeScreen()
{
    Screen screen;
    screen.window = std::make_unique<QWidget>();
    auto *layout = new QGridLayout(screen.window.get());
    std::vector<QWidget *> buttons(40);
    for (int i = 0; i < 40; ++i)
        buttons[std::size_t(i)] = addButton(layout, i);
    screen.actions = { fullRepaint(screen.window.get()), pressAndRelease(buttons) };
    return screen;
}

#ifdef HOXQ_BENCHMARK_STOCK

QString stockStyleSheet()
{
    return QStringLiteral("QToolButton { border: none; background: transparent; }"
                          "QToolButton:pressed { border: 1px solid #ababab; border-radius: 2px;"
                          " background: #dbdbdb; }");
}

#endif

} // namespace bench
