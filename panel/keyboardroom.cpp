// SPDX-License-Identifier: MIT
#include "panel/keyboardroom_p.h"

#include "panel/onscreenkeyboard.h"
#include "panel/panelnotice.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QWindow>

namespace vexo::hox::qt::panel {

namespace {

QRect onScreen(const QWidget &widget)
{
    return QRect(widget.mapToGlobal(QPoint()), widget.size());
}

// In the coordinates of the window that has the focus.
QRect ofInputMethod()
{
    const QInputMethod &method = *QGuiApplication::inputMethod();
    const QWindow *window = QGuiApplication::focusWindow();
    if (!window || !method.isVisible())
        return QRect();
    const QRect place = method.keyboardRectangle().toAlignedRect();
    return QRect(window->mapToGlobal(place.topLeft()), place.size());
}

QRect above(QRect room, const QRect &keyboard)
{
    if (room.intersects(keyboard) && keyboard.top() > room.top())
        room.setBottom(keyboard.top() - 1);
    return room;
}

} // namespace

QRect roomAboveKeyboards(const QWidget &screen)
{
    QRect room = above(onScreen(screen), ofInputMethod());
    const auto keyboards = screen.window()->findChildren<OnScreenKeyboard *>();
    for (const OnScreenKeyboard *keyboard : keyboards) {
        if (keyboard->isVisible())
            room = above(room, onScreen(*keyboard));
    }
    return QRect(screen.mapFromGlobal(room.topLeft()), room.size());
}

void tellOfKeyboard(const QWidget &keyboard)
{
    const auto notices = keyboard.window()->findChildren<PanelNotice *>();
    QEvent request(QEvent::LayoutRequest);
    for (PanelNotice *notice : notices)
        QCoreApplication::sendEvent(notice, &request);
}

} // namespace vexo::hox::qt::panel
