// SPDX-License-Identifier: MIT
#include "panel/coverfollower_p.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QEvent>

namespace vexo::hox::qt::panel {

CoverFollower::CoverFollower(QWidget *cover)
    : QObject(cover)
    , m_cover(cover)
{
    if (QWidget *screen = cover->parentWidget()) {
        screen->installEventFilter(this);
        cover->setGeometry(screen->rect());
    }
}

bool CoverFollower::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize && watched == m_cover->parentWidget())
        m_cover->setGeometry(m_cover->parentWidget()->rect());
    return false;
}

void endPresses(QWidget *screen)
{
    QEvent blocked(QEvent::WindowBlocked); // as for a dialog that is a window; children get it too
    QCoreApplication::sendEvent(screen, &blocked);
    const auto buttons = screen->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        if (button->isDown())
            button->setDown(false); // the toolkit's own take no notice of the event
    }
}

} // namespace vexo::hox::qt::panel
