#include "benchmarks/operations/operations.h"

#include <ActiveVectorButton>
#include <QCoreApplication>
#include <QGridLayout>
#include <QHash>
#include <QMouseEvent>
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

QToolButton *makeLibraryButton(QWidget *parent, const QTimer *timer)
{
    const QString state1 = QLatin1String(VexoIconButton::DEFAULT_STATE_NAME);
    const QString state2 = QLatin1String(VexoIconButton::ALTERNATIVE_STATE_NAME);
    auto *button = new VexoIconButton(parent);
    button->setMmIconSize(QSizeF(4.7, 4.7));
    button->addIcon(state1, iconFile(0));
    button->addIcon(state2, iconFile(1));
    button->initialize(state1); // else the first paint ends the blink
    button->setTimer(timer);
    button->blink(state1, state2);
    return button;
}

QToolButton *makeStockButton(QWidget *parent, const QTimer *timer)
{
    auto *button = new QToolButton(parent);
    button->setIconSize(QSize(icon_px, icon_px));
    button->setIcon(sharedIcon(iconFile(0)));
    const auto swap
        = [button, icons = std::array{ sharedIcon(iconFile(1)), sharedIcon(iconFile(0)) },
              next = 0U]() mutable { button->setIcon(icons[next++ % 2]); };
    QObject::connect(timer, &QTimer::timeout, button, swap);
    return button;
}

using Make = QToolButton *(*)(QWidget *, const QTimer *);

// A visible window full of buttons, and the timer that paces them but never runs.
struct Panel
{
    Panel(const char *style_sheet, Make make, int buttons)
    {
        window.setStyleSheet(QLatin1String(style_sheet));
        for (int i = 0; i < buttons; ++i) {
            first = make(&window, &timer);
            first->setFixedSize(140, 140);
            layout.addWidget(first, i / 8, i % 8);
        }
        window.show();
        QCoreApplication::processEvents();
    }

    QTimer timer;
    QWidget window;
    QGridLayout layout{ &window };
    QToolButton *first = nullptr;
};

void send(QToolButton *button, QEvent::Type type)
{
    const auto buttons = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    QMouseEvent event(type, QPointF(5, 5), Qt::LeftButton, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(button, &event);
    QCoreApplication::processEvents();
}

void addButton(const char *variant, const char *style_sheet, Make make)
{
    const auto panel
        = [=](int buttons) { return std::make_shared<Panel>(style_sheet, make, buttons); };
    add("icon-construct", variant, [=](int) {
        return [panel = panel(0), make] {
            const std::unique_ptr<QToolButton> button(make(&panel->window, &panel->timer));
            button->ensurePolished();
        };
    });
    add("icon-repaint", variant,
        [=](int) { return [panel = panel(1)] { panel->first->repaint(); }; });
    add("icon-tap", variant, [=](int) {
        return [panel = panel(1)] {
            send(panel->first, QEvent::MouseButtonPress);
            send(panel->first, QEvent::MouseButtonRelease);
        };
    });
    add("icon-tick", variant, [=](int) {
        return [panel = panel(count)] {
            QMetaObject::invokeMethod(&panel->timer, "timeout");
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
