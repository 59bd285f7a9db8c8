// SPDX-License-Identifier: MIT
#include "benchmarks/support/screen.h"

#include <QGridLayout>
#include <QLabel>
#include <QTimer>
#include <QToolButton>

#ifdef HOXQ_BENCHMARK_LIBRARY
#include <VexoIconButton>
#else
#include <QPixmapCache>

#include <array>
#endif

namespace bench {

namespace {

QString iconFile(const char *name)
{
    return QStringLiteral(":/widgetimages/%1.svg").arg(QLatin1String(name));
}

#ifdef HOXQ_BENCHMARK_LIBRARY

using namespace vexo::hox::qt::ui;

QToolButton *makeButton(const QString &file, const QString &other, const QTimer *timer)
{
    auto *button = new VexoIconButton;
    button->setMmIconSize(QSizeF(4.7, 4.7));
    button->addIcon(VexoIconButton::DEFAULT_STATE_NAME, file);
    button->addIcon(VexoIconButton::ALTERNATIVE_STATE_NAME, other);
    button->initialize(VexoIconButton::DEFAULT_STATE_NAME); // else the first paint ends the blink
    button->setTimer(timer);
    button->blink(VexoIconButton::DEFAULT_STATE_NAME, VexoIconButton::ALTERNATIVE_STATE_NAME);
    return button;
}

#else

// Buttons with the same image share one pixmap, as the library's do.
QIcon icon(const QString &file)
{
    QPixmap pixmap;
    if (!QPixmapCache::find(file, &pixmap)) {
        pixmap = QIcon(file).pixmap(47, 47); // 4.7 mm
        QPixmapCache::insert(file, pixmap);
    }
    return pixmap;
}

QToolButton *makeButton(const QString &file, const QString &other, const QTimer *timer)
{
    auto *button = new QToolButton;
    button->setIconSize(QSize(47, 47));
    button->setIcon(icon(file));
    const auto swap = [button, icons = std::array{ icon(other), icon(file) }, next = 0U]() mutable {
        button->setIcon(icons[next++ % 2]);
    };
    QObject::connect(timer, &QTimer::timeout, button, swap);
    return button;
}

#endif

QWidget *addButton(QGridLayout *layout, int index, const QTimer *timer)
{
    const char *const files[][2] = { { "RoundButton_S_Tick_Active", "RoundButton_S_Tick_Inactive" },
        { "RoundButton_S_X_Active", "RoundButton_S_X_Pressed" },
        { "Icons_Round_Small/RoundButton_S_Minus_Active",
            "Icons_Round_Small/RoundButton_S_Minus_Inactive" },
        { "Icons_Round_Small/RoundButton_S_Plus_Active",
            "Icons_Round_Small/RoundButton_S_Plus_Inactive" } };
    const auto &pair = files[index % 4];
    QToolButton *button = makeButton(iconFile(pair[0]), iconFile(pair[1]), timer);
    button->setFixedSize(140, 140);
    layout->addWidget(button, 1 + index / 8, index % 8);
    return button;
}

// Paints the wall of icons without the text above it.
Action repaintBetween(const QWidget *first, const QWidget *last)
{
    return { "repaint",
        [=] { first->parentWidget()->repaint(first->geometry() | last->geometry()); } };
}

} // namespace

Screen makeScreen()
{
    Screen screen;
    screen.window = std::make_unique<QWidget>();
    auto *layout = new QGridLayout(screen.window.get());
    // A text, as on any screen: without one the toolkit leaves out what its first text takes.
    layout->addWidget(new QLabel(QStringLiteral("Icons")), 0, 0, 1, 8);
    auto *timer = new QTimer(screen.window.get());
    std::vector<QWidget *> buttons(40);
    for (int i = 0; i < 40; ++i)
        buttons[std::size_t(i)] = addButton(layout, i, timer);
    screen.actions = { repaintBetween(buttons.front(), buttons.back()), tick(timer),
        pressAndRelease(buttons) };
    return screen;
}

#ifdef HOXQ_BENCHMARK_STOCK

QString stockStyleSheet()
{
    return QStringLiteral("QToolButton { border: none; background: transparent; }"
                          "QToolButton:pressed { border: 0px solid black;"
                          " border-top-width: 1px; border-left-width: 1px; }");
}

#endif

} // namespace bench
