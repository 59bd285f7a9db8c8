#pragma once
// SPDX-License-Identifier: MIT

#include <QAbstractButton>
#include <QEvent>
#include <QPoint>
#include <QPointer>

#include <functional>

class QMouseEvent;
class QTouchEvent;

namespace vexo::hox::qt::panel {

/// The finger on the keys of a keyboard. It makes a press and a release of what touches and mouse
/// report, so that nothing is lost which a typist means: a press in a gap counts for the next key,
/// a lift somewhat beside the key still clicks it, and a second finger that comes before the first
/// one has left lifts that.
class KeyFinger : public QObject
{
    Q_OBJECT

public:
    /// Goes with \a keyboard. \a find is asked for the key at a place, px of \a keyboard, or null.
    KeyFinger(QWidget *keyboard, std::function<QAbstractButton *(const QPoint &)> find);

    /// The mouse on this key is a finger, too.
    void watch(QAbstractButton *key) { key->installEventFilter(this); }
    /// \a popup, or none, gets all touches while it is open; those on the keyboard are for the
    /// keys.
    void watchPopup(QWidget *popup);
    bool eventFilter(QObject *watched, QEvent *event) override;
    /// Events of the keyboard itself; true if it was one of the finger.
    bool take(QEvent *event);

    QAbstractButton *key() const { return m_key; }
    /// Where the finger is, px of the keyboard.
    QPoint place() const { return m_place; }
    /// When the press began, ms of the events' clock.
    ulong pressTime() const { return m_press_ms; }
    /// Ends the press without a click.
    void takeBack();

Q_SIGNALS:
    /// Comes before the key is pressed.
    void pressing();
    /// By \a px since the press.
    void moved(const QPoint &px);
    /// Comes before the key's own signals; takeBack() keeps it from them.
    void lifting(const QPoint &px);

private:
    bool takeTouch(const QTouchEvent &event);
    bool takeMouse(QWidget *widget, const QMouseEvent &event);
    void press(QAbstractButton *key, const QPoint &place, ulong ms);
    void move(const QPoint &place);
    void lift();
    void release(const QPoint &place);
    void send(QAbstractButton *key, QEvent::Type type, const QPoint &place);

    QWidget *const m_keyboard;
    const std::function<QAbstractButton *(const QPoint &)> m_find;
    QPointer<QWidget> m_popup;
    QPointer<QAbstractButton> m_key; // that is pressed
    int m_touch = 0; // number of its touch point
    QPoint m_press_place; // px of the keyboard
    QPoint m_place;
    ulong m_press_ms = 0;
    const QEvent *m_sent = nullptr; // to a key
};

} // namespace vexo::hox::qt::panel
