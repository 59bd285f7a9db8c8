// SPDX-License-Identifier: MIT
#include "uitest/widgetpath_p.h"

#include <QStringList>
#include <QVariant>
#include <QWidget>

namespace vexo::hox::qt::uitest {

namespace {

QString className(const QWidget *widget)
{
    return QString::fromLatin1(widget->metaObject()->className()).section(QLatin1String("::"), -1);
}

// The toolkit gives some of its own children names, which tell nobody anything.
bool isOfToolkit(const QString &name)
{
    return name.startsWith(QLatin1String("qt_"));
}

QString calledName(const QWidget *widget)
{
    if (!widget->objectName().isEmpty() && !isOfToolkit(widget->objectName()))
        return widget->objectName();
    if (!widget->accessibleName().isEmpty())
        return widget->accessibleName();
    return widget->property("text").toString().section(QLatin1Char('\n'), 0, 0);
}

} // namespace

QString widgetName(const QWidget *widget)
{
    if (!widget)
        return QStringLiteral("no widget");
    const QString called = calledName(widget);
    return called.isEmpty() ? className(widget)
                            : QStringLiteral("%1 \"%2\"").arg(className(widget), called);
}

QString widgetPath(const QWidget *widget)
{
    QStringList names(widgetName(widget));
    while (widget && !widget->isWindow() && (widget = widget->parentWidget())) {
        if (widget->isWindow() || !calledName(widget).isEmpty())
            names.prepend(widgetName(widget));
    }
    return names.join(QLatin1String(" > "));
}

} // namespace vexo::hox::qt::uitest
