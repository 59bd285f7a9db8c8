// SPDX-License-Identifier: MIT
#include "designer/formtext.h"

#include "designer/formclasses.h"
#include "designer/headercomments.h"

#include <ScalingInfo>

#include <QMetaProperty>
#include <QVector>
#include <QXmlStreamWriter>

#include <memory>
#include <utility>

using vexo::hox::qt::ui::ScalingInfo;

namespace {

QVector<std::pair<QByteArray, QString>> pairs(const char *text)
{
    QVector<std::pair<QByteArray, QString>> found;
    const QStringList parts = QString::fromUtf8(text).split(QStringLiteral("; "));
    for (const QString &part : parts) {
        const int equals = part.indexOf(QLatin1Char('='));
        if (equals > 0)
            found.push_back({ part.left(equals).toLatin1(), part.mid(equals + 1) });
    }
    return found;
}

QString objectName(const QByteArray &class_name)
{
    QString name = QString::fromLatin1(class_name);
    name.front() = name.front().toLower();
    return name;
}

QString valueTag(const QMetaProperty &property)
{
    if (property.isEnumType())
        return QStringLiteral("enum");
    switch (property.userType()) {
    case QMetaType::Int:
        return QStringLiteral("number");
    case QMetaType::Double:
        return QStringLiteral("double");
    default:
        return QStringLiteral("string");
    }
}

void writeProperties(QXmlStreamWriter *xml, const FormClass &form_class)
{
    const auto properties = pairs(form_class.first);
    for (const auto &[name, value] : properties) {
        const QMetaObject &meta = *form_class.meta;
        const QMetaProperty property = meta.property(meta.indexOfProperty(name));
        xml->writeStartElement(QStringLiteral("property"));
        xml->writeAttribute(QStringLiteral("name"), QString::fromLatin1(name));
        if (!property.hasStdCppSet())
            xml->writeAttribute(QStringLiteral("stdset"), QStringLiteral("0"));
        const QString scope = property.isEnumType()
            ? QString::fromLatin1(property.enumerator().scope()) + QStringLiteral("::")
            : QString();
        xml->writeTextElement(valueTag(property), scope + value);
        xml->writeEndElement();
    }
}

void writeGeometry(QXmlStreamWriter *xml, const QSize &px)
{
    xml->writeStartElement(QStringLiteral("property"));
    xml->writeAttribute(QStringLiteral("name"), QStringLiteral("geometry"));
    xml->writeStartElement(QStringLiteral("rect"));
    xml->writeTextElement(QStringLiteral("x"), QStringLiteral("0"));
    xml->writeTextElement(QStringLiteral("y"), QStringLiteral("0"));
    xml->writeTextElement(QStringLiteral("width"), QString::number(px.width()));
    xml->writeTextElement(QStringLiteral("height"), QString::number(px.height()));
    xml->writeEndElement();
    xml->writeEndElement();
}

void startWidget(QXmlStreamWriter *xml, const FormClass &form_class)
{
    xml->writeStartElement(QStringLiteral("widget"));
    xml->writeAttribute(QStringLiteral("class"), QString::fromLatin1(form_class.meta->className()));
    xml->writeAttribute(QStringLiteral("name"), objectName(form_class.name()));
}

void writeToolTips(QXmlStreamWriter *xml, const QMetaObject *meta)
{
    for (int i = 0; i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        const QByteArray owner = property.enclosingMetaObject()->className();
        const QString comment
            = headerComment(owner.mid(owner.lastIndexOf(':') + 1), property.name());
        if (comment.isEmpty())
            continue;
        xml->writeStartElement(QStringLiteral("tooltip"));
        xml->writeAttribute(QStringLiteral("name"), QString::fromLatin1(property.name()));
        xml->writeCharacters(asRichText(comment));
        xml->writeEndElement();
    }
}

void writeClass(QXmlStreamWriter *xml, const FormClass &form_class)
{
    xml->writeStartElement(QStringLiteral("customwidgets"));
    xml->writeStartElement(QStringLiteral("customwidget"));
    xml->writeTextElement(
        QStringLiteral("class"), QString::fromLatin1(form_class.meta->className()));
    xml->writeTextElement(QStringLiteral("extends"), QString::fromLatin1(form_class.toolkitBase()));
    if (form_class.placesChildren())
        xml->writeTextElement(QStringLiteral("addpagemethod"), QStringLiteral("addFromForm"));
    xml->writeStartElement(QStringLiteral("propertyspecifications"));
    writeToolTips(xml, form_class.meta);
    xml->writeEndElement();
    xml->writeEndElement();
    xml->writeEndElement();
}

} // namespace

QSize firstSize(const FormClass &form_class)
{
    const std::unique_ptr<QWidget> sample(form_class.make(nullptr));
    setProperties(sample.get(), form_class.first);
    QSize px = ScalingInfo::inst()->mm2px(form_class.mm).toSize();
    const QSize own = sample->sizeHint().expandedTo(sample->minimumSizeHint());
    if (px.width() <= 0)
        px.setWidth(own.width());
    if (px.height() <= 0)
        px.setHeight(own.height());
    return px.expandedTo(sample->minimumSize()).boundedTo(sample->maximumSize());
}

QString domXml(const FormClass &form_class)
{
    QString text;
    QXmlStreamWriter xml(&text);
    xml.writeStartElement(QStringLiteral("ui"));
    xml.writeAttribute(QStringLiteral("language"), QStringLiteral("c++"));
    xml.writeAttribute(QStringLiteral("displayname"), QString::fromLatin1(form_class.name()));
    startWidget(&xml, form_class);
    writeGeometry(&xml, firstSize(form_class));
    writeProperties(&xml, form_class);
    for (const FormClass &content : formClasses()) {
        if (content.name() == form_class.content) {
            startWidget(&xml, content);
            writeProperties(&xml, content);
            xml.writeEndElement();
        }
    }
    xml.writeEndElement();
    writeClass(&xml, form_class);
    xml.writeEndElement();
    return text;
}

void setProperties(QWidget *widget, const char *text)
{
    const auto properties = pairs(text);
    for (const auto &[name, value] : properties)
        widget->setProperty(name, value);
}
