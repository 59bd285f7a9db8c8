// SPDX-License-Identifier: MIT
#include "uitest/silence_p.h"

#include <QAbstractButton>
#include <QButtonGroup>

namespace vexo::hox::qt::uitest {

Silence::Silence(QWidget *window)
{
    add(window);
    const auto children = window->findChildren<QObject *>();
    for (QObject *child : children) {
        add(child);
        const auto *button = qobject_cast<QAbstractButton *>(child);
        if (button && button->group())
            add(button->group());
    }
}

// A group has several buttons: what it did before is told by its first entry.
Silence::~Silence()
{
    for (auto it = m_objects.crbegin(); it != m_objects.crend(); ++it) {
        if (it->first)
            it->first->blockSignals(it->second);
    }
}

void Silence::add(QObject *object)
{
    m_objects.append({ object, object->blockSignals(true) });
}

} // namespace vexo::hox::qt::uitest
