// SPDX-License-Identifier: MIT
#include "uitest/plugin/liveaudit.h"

#include <QGenericPlugin>

/// Audits an application that knows nothing of it: QT_QPA_GENERIC_PLUGINS=hoxquiaudit.
class AuditPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "hoxquiaudit.json")

public:
    QObject *create(const QString &, const QString &specification) override
    {
        return new LiveAudit(specification);
    }
};

#include "auditplugin.moc"
