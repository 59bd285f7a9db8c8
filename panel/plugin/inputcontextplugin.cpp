// SPDX-License-Identifier: MIT
#include "panel/plugin/inputcontext.h"

#include <qpa/qplatforminputcontextplugin_p.h>

/// Any application that uses Qt Widgets has the keyboard with QT_IM_MODULE=hoxqui.
class InputContextPlugin : public QPlatformInputContextPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QPlatformInputContextFactoryInterface_iid FILE "hoxqui.json")

public:
    QPlatformInputContext *create(const QString &, const QStringList &) override
    {
        return new InputContext;
    }
};

#include "inputcontextplugin.moc"
