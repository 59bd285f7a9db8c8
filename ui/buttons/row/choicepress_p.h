#pragma once
// SPDX-License-Identifier: MIT

#include "ui/touch/press_p.h"

#include <QAbstractButton>
#include <QMouseEvent>
#include <QPointer>

namespace vexo::hox::qt::ui {

/// The press of a check box or radio button, which changes at the release, and after no swipe. It
/// follows the finger on the screen: the list moves below it.
struct ChoicePress
{
    static void begin(QAbstractButton *button, QMouseEvent *event)
    {
        if (Press::begin(button, event, event->globalPos()))
            Q_EMIT button->pressed();
    }

    static void end(QAbstractButton *button, const QMouseEvent &event)
    {
        if (Press::end(button, event) == Press::Released)
            toggle(button);
    }

    /// What a tap does.
    static void toggle(QAbstractButton *button)
    {
        const QPointer<QAbstractButton> guard(button);
        button->toggle();
        if (guard)
            Q_EMIT button->clicked(button->isChecked());
    }
};

} // namespace vexo::hox::qt::ui
