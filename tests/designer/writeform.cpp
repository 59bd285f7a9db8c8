// SPDX-License-Identifier: MIT
#include "designer/designerhost.h"
#include "support/propertywalk.h"

#include <QApplication>
#include <QDomDocument>
#include <QFile>
#include <QMetaProperty>

#include <cstdlib>

namespace {

// Not as pixmaps and icons: those that Designer sets come from resource files of the form.
void setEachProperty(DesignerHost *designer, QWidget *widget)
{
    const QMetaObject *meta = widget->metaObject();
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        if (property.userType() == QMetaType::QPixmap || property.userType() == QMetaType::QIcon)
            continue;
        const QVariant other = otherValue(property, property.read(widget), 3);
        designer->set(widget, QString::fromLatin1(property.name()), other);
    }
}

QDomElement widgetElement(const QDomDocument &form, const char *object_name)
{
    const QDomNodeList widgets = form.elementsByTagName(QStringLiteral("widget"));
    for (int i = 0; i < widgets.size(); ++i) {
        const QDomElement widget = widgets.at(i).toElement();
        if (widget.attribute(QStringLiteral("name")) == QLatin1String(object_name))
            return widget;
    }
    return QDomElement();
}

QString withChildren(const QString &text)
{
    const struct
    {
        const char *child;
        const char *container;
    } moves[] = {
        { "vexoFunctionButton", "vexoVerticalScrollContent" },
        { "vexoRuler", "vexoVerticalScrollContent" },
        { "vexoLabel", "vexoVerticalScrollContent" },
        { "vexoLineEdit", "vexoLabeledContainer" },
    };
    QDomDocument form;
    form.setContent(text);
    for (const auto &move : moves)
        widgetElement(form, move.container).appendChild(widgetElement(form, move.child));
    return form.toString();
}

} // namespace

/// writeform FILE: a form with each widget of the plugin, each property of its class set, and
/// children in the containers, as Designer saves it.
int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    DesignerHost designer;
    const QStringList names = designer.offered();
    for (const QString &name : names)
        setEachProperty(&designer, designer.add(name));
    designer.open(withChildren(designer.saved()));
    QFile file(QString::fromLocal8Bit(argv[argc - 1]));
    const QByteArray form = designer.saved().toUtf8();
    return file.open(QFile::WriteOnly) && file.write(form) == form.size() ? EXIT_SUCCESS
                                                                          : EXIT_FAILURE;
}
