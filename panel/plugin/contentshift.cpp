// SPDX-License-Identifier: MIT
#include "panel/plugin/contentshift.h"

#include <PanelDimmer>
#include <PanelNotice>

#include <QEvent>
#include <QLayout>

namespace {

// They find their place themselves.
bool liesOverAll(const QWidget *child)
{
    using namespace vexo::hox::qt::panel;
    return qobject_cast<const PanelNotice *>(child) || qobject_cast<const PanelDimmer *>(child);
}

} // namespace

ContentShift::~ContentShift()
{
    setWindow(nullptr, nullptr);
}

void ContentShift::setWindow(QWidget *window, const QWidget *stays)
{
    m_stays = stays;
    if (window == m_window)
        return;
    set(0, 0);
    m_window = window;
    m_up = 0;
    m_below = 0;
    m_children.clear();
}

void ContentShift::set(int up_px, int below_px)
{
    QWidget *window = m_window;
    if (!window || (up_px == m_up && below_px == m_below))
        return;
    QMargins margins = window->contentsMargins();
    margins.setBottom(margins.bottom() + below_px - m_below);
    m_below = below_px;
    window->setContentsMargins(margins);
    if (m_children.isEmpty())
        takeChildren(window);
    const int by_px = up_px - m_up;
    m_up = up_px;
    for (QWidget *child : qAsConst(m_children)) {
        if (child)
            move(child, by_px);
    }
    if (m_up == 0)
        leaveChildren(window);
}

// A layout has put it to where it would be without the shift.
bool ContentShift::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Move && !m_is_moving)
        move(static_cast<QWidget *>(watched), m_up);
    return false;
}

void ContentShift::takeChildren(const QWidget *window)
{
    const auto children = window->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *child : children) {
        if (child == m_stays || child->isWindow() || liesOverAll(child))
            continue;
        m_children.append(child);
        child->installEventFilter(this);
    }
}

void ContentShift::leaveChildren(QWidget *window)
{
    for (QWidget *child : qAsConst(m_children)) {
        if (child)
            child->removeEventFilter(this);
    }
    m_children.clear();
    if (QLayout *layout = window->layout()) {
        layout->invalidate();
        layout->activate();
    }
}

void ContentShift::move(QWidget *child, int up_px)
{
    m_is_moving = true;
    child->move(child->x(), child->y() - up_px);
    m_is_moving = false;
}
