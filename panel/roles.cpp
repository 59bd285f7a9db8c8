// SPDX-License-Identifier: MIT
#include "panel/roles_p.h"

#include "panel/paneldialog.h"
#include "panel/panelnotice.h"

#include <QAccessibleWidget>

namespace vexo::hox::qt::panel {

namespace {

QAccessibleInterface *create(const QString &, QObject *object)
{
    if (auto *dialog = qobject_cast<PanelDialog *>(object))
        return new QAccessibleWidget(dialog, QAccessible::Dialog);
    if (auto *notice = qobject_cast<PanelNotice *>(object))
        return new QAccessibleWidget(notice, QAccessible::AlertMessage);
    return nullptr;
}

struct Remover
{
    Remover() = default;
    ~Remover() { QAccessible::removeFactory(create); }
    Q_DISABLE_COPY(Remover)
};

} // namespace

// An application that ends takes all factories along, and the next one needs them.
void installRoles()
{
    QAccessible::installFactory(create);
    static const Remover remover;
    Q_UNUSED(remover)
}

} // namespace vexo::hox::qt::panel
