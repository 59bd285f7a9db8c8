#pragma once
// SPDX-License-Identifier: MIT

#include <VexoFeedbackDelegator>

#include <QAbstractButton>
#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QVector>

using Way = QVector<QPoint>;

/// One event of a finger at \a at, px in \a widget; whether it was accepted.
inline bool finger(QWidget *widget, QEvent::Type type, const QPoint &at)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButton held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, widget->mapToGlobal(at), button, held, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

/// Presses at the beginning of \a way, wanders along it and releases at its end; whether the
/// release was accepted.
inline bool touch(const QPointer<QWidget> &widget, const Way &way = { { 20, 15 } })
{
    finger(widget, QEvent::MouseButtonPress, way.first());
    for (const QPoint &at : way) {
        if (widget)
            finger(widget, QEvent::MouseMove, at);
    }
    return widget && finger(widget, QEvent::MouseButtonRelease, way.last());
}

/// Appends the signals of \a button to \a log, in their order, as "clicked 1; ".
inline void record(QAbstractButton *button, QByteArray *log, const QByteArray &prefix = {})
{
    const auto note = [=](const QByteArray &name) { return [=] { *log += prefix + name + "; "; }; };
    const auto noteState = [=](const QByteArray &name) {
        return [=](bool on) { *log += prefix + name + (on ? " 1; " : " 0; "); };
    };
    QObject::connect(button, &QAbstractButton::pressed, button, note("pressed"));
    QObject::connect(button, &QAbstractButton::released, button, note("released"));
    QObject::connect(button, &QAbstractButton::toggled, button, noteState("toggled"));
    QObject::connect(button, &QAbstractButton::clicked, button, noteState("clicked"));
}

/// Touches \a victim, which is deleted in its \a signal; whether it is gone.
template <typename Widget, typename Signal>
bool isGoneAfter(Signal signal, Widget *victim, const Way &way = { { 20, 15 } })
{
    const QPointer<Widget> widget(victim);
    QObject::connect(victim, signal, victim, [widget] { delete widget; });
    touch(victim, way);
    return !widget;
}

/// Installs itself and counts the tones that it is asked for.
struct ToneCounter : vexo::hox::qt::ui::VexoFeedbackDelegator
{
    ToneCounter() { tone_delegator = this; }
    void tone() override { ++tones; }
    void down() override { }
    void up() override { }
    int tones = 0;
};

/// Whether a press on a Widget rings once, and only the delegator of its construction.
template <typename Widget>
bool ringsOnce()
{
    Widget silent;
    const ToneCounter delegator;
    Widget widget;
    const ToneCounter later;
    touch(&silent);
    touch(&widget);
    return delegator.tones == 1 && later.tones == 0;
}
