// SPDX-License-Identifier: MIT
#include "ui/foundation/visiblebuddies_p.h"

#include <QScopeGuard>

namespace vexo::hox::qt::ui {

VisibleBuddies::~VisibleBuddies()
{
    if (m_is_gone)
        *m_is_gone = true;
}

void VisibleBuddies::add(QWidget *buddy)
{
    if (buddy)
        m_buddies.append(buddy);
}

QWidget *VisibleBuddies::addHidden(QWidget *buddy)
{
    add(buddy);
    if (buddy)
        buddy->setVisible(false);
    return buddy;
}

void VisibleBuddies::clear()
{
    m_buddies.clear();
}

void VisibleBuddies::follow(bool visible)
{
    if (m_is_gone != nullptr)
        return;
    bool is_gone = false;
    m_is_gone = &is_gone;
    const auto finish = qScopeGuard([&] {
        if (!is_gone)
            m_is_gone = nullptr;
    });
    const QVector<QPointer<QWidget>> buddies = m_buddies;
    for (const QPointer<QWidget> &buddy : buddies) {
        if (buddy)
            buddy->setVisible(visible);
    }
}

} // namespace vexo::hox::qt::ui
