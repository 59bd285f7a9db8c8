// SPDX-License-Identifier: MIT
#include "ui/touch/press_p.h"

#include "ui/touch/touchwatch_p.h"

#include <QAbstractButton>
#include <QGuiApplication>
#include <QMouseEvent>

#include <memory>

namespace vexo::hox::qt::ui {

namespace {

const QPoint far_away(-QWIDGETSIZE_MAX, -QWIDGETSIZE_MAX); // where the toolkit's scroller lets go

struct State
{
    QPointer<QWidget> widget; // also after a press was taken back, until the finger is lifted
    std::unique_ptr<TouchWatch> watch; // as long as the press goes on
    QPoint position; // of the beginning
    bool was_held_back = false; // by a list
    bool has_moved = false;
    bool is_swipe = false;
    bool is_dropping = false;
    bool is_nobodys = false; // what the finger does, until the next press
};

State &state()
{
    static State only_one;
    return only_one;
}

bool isFarAway(const QMouseEvent &release)
{
    return qMin(release.pos().x(), release.globalPos().x()) <= far_away.x() / 2;
}

// A scroller forgets the time of an event that it holds back.
bool isHeldBack(const QMouseEvent &press)
{
    return press.spontaneous() && press.timestamp() == 0;
}

QMouseEvent releaseFarAway()
{
    return QMouseEvent(QEvent::MouseButtonRelease, far_away, far_away, far_away, Qt::LeftButton,
        Qt::NoButton, Qt::NoModifier);
}

// An event that is sent would go through the gestures, which take it for that of the finger, and
// not to a disabled widget.
struct Handlers : QWidget
{
    static void release(QWidget *widget)
    {
        QMouseEvent event = releaseFarAway();
        (widget->*&Handlers::mouseReleaseEvent)(&event);
    }
};

} // namespace

bool Press::begin(QWidget *widget, QMouseEvent *event, const QPoint &position)
{
    takeBack();
    const bool is_touch = event->button() == Qt::LeftButton;
    if (is_touch) {
        state().widget = widget;
        state().is_nobodys = false;
    }
    const bool is_late = isHeldBack(*event);
    if (!is_touch || (is_late && (state().is_dropping || TouchWatch::isOutOfReach(*widget)))) {
        event->ignore();
        return false;
    }
    state().watch = std::make_unique<TouchWatch>(widget, takeBack);
    if (is_late && qobject_cast<QAbstractButton *>(widget))
        state().watch->limitTo(event->globalPos());
    if (is_late && !(QGuiApplication::mouseButtons() & Qt::LeftButton))
        state().watch->endSoon();
    state().position = position;
    state().was_held_back = is_late;
    state().has_moved = false;
    state().is_swipe = false;
    return true;
}

bool Press::isOn(const QWidget *widget)
{
    return state().watch && state().widget == widget;
}

bool Press::isWithin(const QWidget *whole)
{
    const QWidget *pressed = state().watch ? state().widget.data() : nullptr;
    return pressed && (pressed == whole || whole->isAncestorOf(pressed));
}

bool Press::wasTakenBack(const QWidget *widget)
{
    return !state().watch && (state().widget == widget || state().is_nobodys);
}

void Press::move(const QWidget *widget)
{
    if (isOn(widget))
        state().has_moved = true;
}

void Press::move(const QWidget *widget, const QPoint &position, const TapLimit &limit)
{
    if (isOn(widget) && limit.isExceededBy(position - state().position))
        state().is_swipe = true;
}

bool Press::missedMoves(const QWidget *widget)
{
    if (!isOn(widget) || !state().was_held_back || state().has_moved)
        return false;
    state().has_moved = true;
    return true;
}

bool Press::isSlide(const QWidget *widget, const QMouseEvent &release)
{
    return isOn(widget) && state().has_moved && release.button() == Qt::LeftButton
        && !isFarAway(release);
}

Press::End Press::end(QWidget *widget, const QMouseEvent &release)
{
    const bool is_taken_back = isFarAway(release);
    if (state().widget != widget || release.button() != Qt::LeftButton)
        return is_taken_back ? TakenBack : state().is_nobodys ? Late : Unknown;
    const bool was_on = isOn(widget);
    state().watch.reset();
    if (is_taken_back) {
        if (auto *button = qobject_cast<QAbstractButton *>(widget))
            button->setDown(false);
        return TakenBack; // and known until the finger is lifted
    }
    state().widget.clear();
    if (!was_on)
        return Late;
    return state().is_swipe ? Swiped : Released;
}

// It sends what it holds back when it sees the release.
void Press::dropHeldBack(QWidget *list)
{
    QMouseEvent event = releaseFarAway();
    state().is_dropping = true;
    QCoreApplication::sendEvent(list, &event);
    state().is_dropping = false;
    state().is_nobodys = true;
}

void Press::takeBack()
{
    if (state().watch && state().widget)
        Handlers::release(state().widget);
    state().watch.reset(); // the handler may be one of the application
}

} // namespace vexo::hox::qt::ui
