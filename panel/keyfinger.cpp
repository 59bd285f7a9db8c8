// SPDX-License-Identifier: MIT
#include "panel/keyfinger_p.h"

#include <ScalingInfo>

#include <QCoreApplication>
#include <QMouseEvent>
#include <QTouchEvent>

#include <utility>

namespace vexo::hox::qt::panel {

namespace {

const QPoint far_away(-QWIDGETSIZE_MAX, -QWIDGETSIZE_MAX); // a release that takes the press back
const float slack_mm = 4; // beside its key, where a lift still clicks

bool isWithin(const QPoint &px, float mm)
{
    const auto *scaling = ui::ScalingInfo::inst();
    return float(qAbs(px.x())) <= scaling->mm2px_X(mm)
        && float(qAbs(px.y())) <= scaling->mm2px_Y(mm);
}

QPoint nearestIn(const QRect &rect, const QPoint &place)
{
    return QPoint(
        qBound(rect.left(), place.x(), rect.right()), qBound(rect.top(), place.y(), rect.bottom()));
}

} // namespace

KeyFinger::KeyFinger(QWidget *keyboard, std::function<QAbstractButton *(const QPoint &)> find)
    : m_keyboard(keyboard)
    , m_find(std::move(find))
{
}

bool KeyFinger::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        return event != m_sent
            && takeMouse(static_cast<QWidget *>(watched), *static_cast<QMouseEvent *>(event));
    default:
        return false;
    }
}

void KeyFinger::watchPopup(QWidget *popup)
{
    if (popup && popup != m_popup)
        popup->installEventFilter(this);
    m_popup = popup;
}

bool KeyFinger::take(QEvent *event)
{
    switch (event->type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
        event->accept(); // before a slot of a key deletes the keyboard
        return takeTouch(*static_cast<QTouchEvent *>(event));
    case QEvent::TouchCancel:
        takeBack();
        return true;
    default:
        return eventFilter(m_keyboard, event);
    }
}

bool KeyFinger::takeTouch(const QTouchEvent &event)
{
    const QPointer<KeyFinger> self(this);
    const ulong ms = event.timestamp();
    const QList<QTouchEvent::TouchPoint> points = event.touchPoints();
    for (const QTouchEvent::TouchPoint &point : points) {
        const QPoint place = m_keyboard->mapFromGlobal(point.screenPos().toPoint());
        if (point.state() == Qt::TouchPointPressed) {
            press(m_find(place), place, ms);
            if (self)
                m_touch = point.id();
        } else if (m_touch != point.id() || point.state() == Qt::TouchPointStationary) {
            continue;
        } else {
            move(place);
            if (self && point.state() == Qt::TouchPointReleased)
                lift();
        }
        if (!self)
            break;
    }
    return true;
}

// Beside the left button there is nothing for a key.
bool KeyFinger::takeMouse(QWidget *widget, const QMouseEvent &event)
{
    const QPoint place = m_keyboard->mapFromGlobal(event.globalPos());
    if (widget == m_popup && !m_key && !m_keyboard->rect().contains(place))
        return false;
    if (event.type() == QEvent::MouseMove) {
        move(place);
        return true;
    }
    if (event.button() != Qt::LeftButton)
        return true;
    if (event.type() != QEvent::MouseButtonRelease) {
        auto *key = qobject_cast<QAbstractButton *>(widget);
        press(key ? key : m_find(place), place, event.timestamp());
        return true;
    }
    const QPointer<KeyFinger> self(this);
    move(place);
    if (self)
        lift();
    return true;
}

void KeyFinger::press(QAbstractButton *key, const QPoint &place, ulong ms)
{
    const QPointer<KeyFinger> self(this);
    const QPointer<QAbstractButton> found(key);
    lift(); // the finger before
    QAbstractButton *pressed = found;
    if (!self || !pressed || !pressed->isEnabled())
        return;
    m_key = pressed;
    m_press_place = place;
    m_place = place;
    m_press_ms = ms;
    Q_EMIT pressing();
    send(pressed, QEvent::MouseButtonPress, place);
}

void KeyFinger::move(const QPoint &place)
{
    if (!m_key || place == m_place)
        return;
    m_place = place;
    Q_EMIT moved(place - m_press_place);
}

void KeyFinger::lift()
{
    if (!m_key)
        return;
    const QPointer<KeyFinger> self(this);
    Q_EMIT lifting(m_place - m_press_place);
    if (self)
        release(m_place);
}

void KeyFinger::takeBack()
{
    release(far_away);
}

void KeyFinger::release(const QPoint &place)
{
    QAbstractButton *key = m_key;
    m_key.clear();
    if (key)
        send(key, QEvent::MouseButtonRelease, place);
}

void KeyFinger::send(QAbstractButton *key, QEvent::Type type, const QPoint &place)
{
    QPoint local = key->mapFrom(m_keyboard, place);
    const QPoint inside = nearestIn(key->rect(), local);
    if (isWithin(local - inside, slack_mm))
        local = inside;
    const QPoint global = key->mapToGlobal(local);
    const bool is_release = type == QEvent::MouseButtonRelease;
    QMouseEvent event(type, local, m_keyboard->window()->mapFromGlobal(global), global,
        Qt::LeftButton, is_release ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier,
        Qt::MouseEventSynthesizedByApplication);
    event.setTimestamp(m_press_ms);
    const QPointer<KeyFinger> self(this);
    m_sent = &event; // a slot of the key may run an event loop
    QCoreApplication::sendEvent(key, &event);
    if (self)
        m_sent = nullptr;
}

} // namespace vexo::hox::qt::panel
