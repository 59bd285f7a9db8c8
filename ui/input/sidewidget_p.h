#pragma once
// SPDX-License-Identifier: MIT

#include <QLineEdit>
#include <QPointer>
#include <QWidgetAction>

namespace vexo::hox::qt::ui {

/// What a line edit shows at one of its ends through any number of actions. Each of them owns it,
/// and the line edit would go on with it when one of them is deleted; so it leaves first.
template <typename Base>
class SideWidget : public Base
{
public:
    explicit SideWidget(QLineEdit *field)
        : m_field(field)
    {
    }

    ~SideWidget() override
    {
        const QList<QAction *> actions = m_field ? m_field->actions() : QList<QAction *>();
        for (QAction *action : actions) {
            const auto *shown = qobject_cast<QWidgetAction *>(action);
            if (shown && shown->defaultWidget() == this)
                m_field->removeAction(action);
        }
    }

private:
    const QPointer<QLineEdit> m_field;
};

} // namespace vexo::hox::qt::ui
