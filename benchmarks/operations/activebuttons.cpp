// SPDX-License-Identifier: MIT
#include "benchmarks/operations/operations.h"
#include "benchmarks/operations/panel.h"

#include <ActiveVectorButton>
#include <QCoreApplication>
#include <QHash>
#include <QPixmapCache>
#include <QTimer>
#include <ScalingInfo>
#include <VexoIconButton>

#include <array>
#include <memory>

using namespace vexo::hox::qt::ui;

namespace bench {

namespace {

const int count = 40; // buttons of a panel, states of a button
const int icon_px = 47; // 4.7 mm

QString iconFile(int index)
{
    const char *const files[] = { "RoundButton_S_Tick_Active", "RoundButton_S_Tick_Inactive",
        "RoundButton_S_X_Active", "Icons_Round_Small/RoundButton_S_Minus_Active",
        "Icons_Round_Small/RoundButton_S_Plus_Active" };
    return QStringLiteral(":/widgetimages/%1.svg").arg(QLatin1String(files[index % 5]));
}

// Buttons with the same image share one pixmap, as the library's do.
QIcon sharedIcon(const QString &file)
{
    QPixmap pixmap;
    if (!QPixmapCache::find(file, &pixmap)) {
        pixmap = QIcon(file).pixmap(icon_px, icon_px);
        QPixmapCache::insert(file, pixmap);
    }
    return pixmap;
}

QWidget *makeLibraryButton(QWidget *parent)
{
    const QString state1 = QLatin1String(VexoIconButton::DEFAULT_STATE_NAME);
    const QString state2 = QLatin1String(VexoIconButton::ALTERNATIVE_STATE_NAME);
    auto *button = new VexoIconButton(parent);
    button->setMmIconSize(QSizeF(4.7, 4.7));
    button->addIcon(state1, iconFile(0));
    button->addIcon(state2, iconFile(1));
    button->initialize(state1); // else the first paint ends the blink
    button->setTimer(parent->findChild<QTimer *>());
    button->blink(state1, state2);
    return button;
}

QWidget *makeStockButton(QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setIconSize(QSize(icon_px, icon_px));
    button->setIcon(sharedIcon(iconFile(0)));
    const auto swap
        = [button, icons = std::array{ sharedIcon(iconFile(1)), sharedIcon(iconFile(0)) },
              next = 0U]() mutable { button->setIcon(icons[next++ % 2]); };
    QObject::connect(parent->findChild<QTimer *>(), &QTimer::timeout, button, swap);
    return button;
}

void addButton(const char *variant, const char *style_sheet, const Make &make)
{
    const QSize px(140, 140);
    addWidget("icon", variant, style_sheet, make, px);
    add("icon-tick", variant, [=](int) {
        return [panel = std::make_shared<Panel>(style_sheet, make, count, px)] {
            QMetaObject::invokeMethod(panel->timer(), "timeout");
            QCoreApplication::processEvents();
        };
    });
}

std::shared_ptr<ActiveVectorButton> buttonWithStates()
{
    auto button = std::make_shared<ActiveVectorButton>();
    button->setMmIconSize(QSizeF(4.7, 4.7));
    for (int i = 0; i < count; ++i)
        button->addIcon(QString::number(i), iconFile(i));
    return button;
}

QHash<QString, QIcon> statesOfFiles()
{
    QHash<QString, QIcon> icons;
    for (int i = 0; i < count; ++i)
        icons.insert(QString::number(i), QIcon(QIcon(iconFile(i)).pixmap(icon_px, icon_px)));
    return icons;
}

void addRerendering()
{
    add("rerender", "library",
        [](int) { return [button = buttonWithStates()] { button->rerenderAll(false); }; });
    add("rerender", "stock", [](int) { return [] { benchmark::DoNotOptimize(statesOfFiles()); }; });
}

} // namespace

void addActiveButtons()
{
    const char *const style_sheet = "QToolButton { border: none; background: transparent; }"
                                    "QToolButton:pressed { border: 1px solid black; }";
    // 10 px/mm, so that the library's icon is the same 47 px.
    ScalingInfo::inst()->setPixels(1280, 800);
    ScalingInfo::inst()->setSizeMM(128, 80);
    addButton("library", "", makeLibraryButton);
    addButton("stock", "", makeStockButton);
    addButton("styled", style_sheet, makeStockButton);
    addRerendering();
}

} // namespace bench
