// SPDX-License-Identifier: MIT
#include "ui/input/cursorblink_p.h"

#include <QEvent>
#include <QWidget>

namespace vexo::hox::qt::ui {

CursorBlink::CursorBlink(QWidget *field)
    : QTimer(field)
{
    field->installEventFilter(this);
}

void CursorBlink::setBlinking(bool on)
{
    m_is_on = on;
    if (on)
        start();
    else
        stop();
}

bool CursorBlink::eventFilter(QObject *field, QEvent *event)
{
    if (event->type() == QEvent::Hide)
        stop();
    else if (event->type() == QEvent::Show && m_is_on && !isActive())
        start();
    return QTimer::eventFilter(field, event);
}

// It may be switched on before the field is shown.
void CursorBlink::timerEvent(QTimerEvent *event)
{
    if (static_cast<QWidget *>(parent())->isVisible())
        QTimer::timerEvent(event);
    else
        stop();
}

} // namespace vexo::hox::qt::ui
