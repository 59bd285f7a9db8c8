// SPDX-License-Identifier: MIT
#include "panel/plugin/keyboarddock.h"

#include "panel/mm_p.h"
#include "panel/over_p.h"
#include "panel/plugin/keyboardchoice.h"

#include <OnScreenKeyboard>

#include <QCoreApplication>
#include <QEvent>
#include <QInputMethodQueryEvent>
#include <QScreen>

#include <algorithm>

namespace {

using vexo::hox::qt::panel::mmY;
using vexo::hox::qt::panel::Over;

const double margin_mm = 2; // around the field
const double largest_part = 0.6; // of the window's height

QRect cursorIn(QWidget *field)
{
    QInputMethodQueryEvent query(Qt::ImCursorRectangle);
    QCoreApplication::sendEvent(field, &query);
    return query.value(Qt::ImCursorRectangle).toRectF().toAlignedRect();
}

// Of a field that is too high its cursor.
QRect partToKeep(QWidget *field, int room_px)
{
    const QRect cursor = field->height() > room_px ? cursorIn(field) : QRect();
    return cursor.isValid() ? cursor : field->rect();
}

QRect movedInto(const QRect &room, QRect rect)
{
    rect.moveLeft(std::max(room.left(), std::min(rect.left(), room.right() + 1 - rect.width())));
    rect.moveTop(std::max(room.top(), std::min(rect.top(), room.bottom() + 1 - rect.height())));
    return rect;
}

} // namespace

KeyboardDock::~KeyboardDock()
{
    leaveWindow();
    delete m_keyboard;
}

void KeyboardDock::open(QWidget *field)
{
    QWidget *window = field->window();
    Keyboard *keyboard = keyboardIn(window);
    m_field = field;
    grow(window, keyboard->sizeHint());
    keyboard->setDark(window->palette().color(QPalette::Window).lightness() < 128);
    keyboard->show();
    keyboard->raise();
    place();
}

void KeyboardDock::close()
{
    Keyboard *keyboard = shown();
    if (!keyboard)
        return;
    m_field.clear();
    keyboard->hide();
    leaveWindow();
    Q_EMIT changed();
}

QRect KeyboardDock::placeInWindow() const
{
    const Keyboard *keyboard = shown();
    return keyboard ? keyboard->geometry() : QRect();
}

void KeyboardDock::follow()
{
    if (Keyboard *keyboard = shown()) {
        keyboard->readReceiver();
        place();
    }
}

bool KeyboardDock::eventFilter(QObject *watched, QEvent *event)
{
    const bool is_size = event->type() == QEvent::Resize && watched == m_window;
    const bool is_need = event->type() == QEvent::LayoutRequest && watched == m_keyboard;
    if (is_size || is_need)
        place();
    return false;
}

KeyboardDock::Keyboard *KeyboardDock::shown() const
{
    Keyboard *keyboard = m_keyboard;
    return keyboard && keyboard->isVisible() ? keyboard : nullptr;
}

KeyboardDock::Keyboard *KeyboardDock::keyboardIn(QWidget *window)
{
    if (m_window != window) {
        leaveWindow();
        m_window = window;
        window->installEventFilter(this);
    }
    Keyboard *keyboard = m_keyboard;
    if (!keyboard)
        keyboard = createKeyboard(window);
    else if (keyboard->parentWidget() != window)
        keyboard->setParent(Over(window));
    m_shift.setWindow(window, keyboard);
    return keyboard;
}

KeyboardDock::Keyboard *KeyboardDock::createKeyboard(QWidget *window)
{
    auto *keyboard = new Keyboard(Over(window));
    m_keyboard = keyboard;
    keyboard->setHasHideKey(true);
    chooseLanguages(keyboard);
    if (!m_language.isEmpty())
        keyboard->setLanguage(m_language);
    m_language = keyboard->language();
    connect(keyboard, &Keyboard::languageChanged, this, [this](const QString &code) {
        m_language = code;
        Q_EMIT languageChanged();
    });
    connect(keyboard, &Keyboard::hideRequested, this, &KeyboardDock::hideRequested);
    return keyboard;
}

void KeyboardDock::leaveWindow()
{
    m_shift.setWindow(nullptr, nullptr);
    QWidget *window = m_window;
    m_window.clear();
    m_grown = 0;
    m_is_told = false;
    if (!window)
        return;
    window->removeEventFilter(this);
    if (!m_small.isNull())
        window->setGeometry(m_small);
    m_small = QRect();
}

void KeyboardDock::grow(QWidget *window, const QSize &wanted)
{
    const bool is_whole = window->windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen);
    if (is_whole || !m_small.isNull() || wanted.height() <= window->height() * largest_part)
        return;
    const QRect room = window->screen()->availableGeometry();
    const QRect before = window->geometry();
    const QSize larger(std::max(before.width(), wanted.width()), before.height() + wanted.height());
    QRect after(QPoint(), larger.boundedTo(room.size()));
    if (after.height() <= before.height())
        return;
    after.moveCenter(before.center());
    m_small = before;
    m_grown = after.height() - before.height();
    window->setGeometry(movedInto(room, after));
}

void KeyboardDock::place()
{
    QWidget *window = m_window;
    Keyboard *keyboard = shown();
    if (!window || !keyboard || m_is_placing) // what it moves makes the window lay itself out
        return;
    m_is_placing = true;
    const int most = std::max(m_grown, int(window->height() * largest_part));
    const int height = std::min(keyboard->sizeHint().height(), most);
    const QRect before = keyboard->geometry();
    const QRect after(0, window->height() - height, window->width(), height);
    keyboard->setGeometry(after);
    keepFieldAbove(after.top());
    m_is_placing = false;
    if (before != after || !m_is_told)
        Q_EMIT changed();
    m_is_told = true;
}

void KeyboardDock::keepFieldAbove(int bottom)
{
    QWidget *window = m_window;
    QWidget *field = m_field;
    if (!window || !field || !window->isAncestorOf(field))
        return;
    const int margin = mmY(margin_mm);
    QRect keep = partToKeep(field, bottom - 2 * margin);
    keep.moveTopLeft(field->mapTo(window, keep.topLeft()) + QPoint(0, m_shift.upPx()));
    const int hidden = keep.bottom() + 1 + margin - bottom;
    const int free_above = std::max(0, keep.top() - margin);
    m_shift.set(std::max(0, std::min(hidden, free_above)), m_grown);
}
