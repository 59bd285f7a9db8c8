// SPDX-License-Identifier: MIT
#include "support/propertywalk.h"

#include "publicclasses.h"

#include <QColor>
#include <QIcon>
#include <QMetaProperty>
#include <QPixmap>
#include <QPointF>
#include <QSizeF>
#include <QStringListModel>
#include <QTest>
#include <QVariant>

#include <type_traits>

using namespace vexo::hox::qt::system;
using namespace vexo::hox::qt::ui;
using namespace vexo::util;

namespace {

template <typename Widget>
QWidget *make(QWidget *parent)
{
    return new Widget(parent);
}

template <>
QWidget *make<RowList>(QWidget *parent)
{
    auto *list = new RowList(parent);
    const QStringList texts{ "Row", "Another row" };
    list->setModel(new QStringListModel(texts, list));
    return list;
}

template <>
QWidget *make<ScaleDisplayWidget>(QWidget *parent)
{
    return new ScaleDisplayWidget(Qt::Horizontal, 56, parent);
}

// Its value is clamped.
template <>
QWidget *make<VexoNumericButton>(QWidget *parent)
{
    auto *stepper = new VexoNumericButton(parent);
    stepper->setMaximum(100);
    return stepper;
}

template <typename Class>
void addIfWidget(std::vector<WalkedClass> *classes, const char *name)
{
    if constexpr (std::is_base_of_v<QWidget, Class>)
        classes->push_back({ name, make<Class> });
}

std::vector<WalkedClass> allWidgets()
{
    std::vector<WalkedClass> classes;
#define HOXQ_ADD(Class) addIfWidget<Class>(&classes, #Class);
    HOXQ_FOR_EACH_CLASS(HOXQ_ADD)
#undef HOXQ_ADD
    return classes;
}

} // namespace

const std::vector<WalkedClass> &walkedClasses()
{
    static const std::vector<WalkedClass> classes = allWidgets();
    return classes;
}

void addWalkedClasses()
{
    QTest::addColumn<const WalkedClass *>("walked");
    for (const WalkedClass &walked : walkedClasses())
        QTest::newRow(walked.name) << &walked;
}

namespace {

const QString IMAGE = ":/cb_checked"; // for the stylesheet

QVariant otherEnumerator(const QMetaProperty &property, int current)
{
    const QMetaEnum keys = property.enumerator();
    for (int i = 0; i < keys.keyCount(); ++i) {
        if (keys.value(i) != current)
            return keys.value(i);
    }
    return QVariant();
}

} // namespace

QVariant otherValue(const QMetaProperty &property, const QVariant &value, int step)
{
    if (property.isEnumType())
        return otherEnumerator(property, value.toInt());
    switch (property.userType()) {
    case QMetaType::Bool:
        return !value.toBool();
    case QMetaType::Int:
        return value.toInt() + step;
    case QMetaType::Double:
        return value.toDouble() + step;
    case QMetaType::Float:
        return value.toFloat() + float(step);
    case QMetaType::QString:
        return QString("text %1").arg(step);
    case QMetaType::QColor:
        return QColor(10 * step, 20, 30);
    case QMetaType::QSizeF:
        return value.toSizeF() + QSizeF(step, step);
    case QMetaType::QPointF:
        return value.toPointF() + QPointF(step, step);
    case QMetaType::QPixmap:
        return QPixmap(step == 3 ? ":/rb_checked" : IMAGE);
    case QMetaType::QIcon:
        return QIcon(QPixmap(step, step));
    default:
        return QVariant();
    }
}

namespace {

QString cssText(const QMetaProperty &property, const QVariant &value)
{
    if (property.isEnumType())
        return QLatin1String(property.enumerator().valueToKey(value.toInt()));
    if (value.userType() == QMetaType::QColor)
        return value.value<QColor>().name();
    if (value.userType() == QMetaType::QPixmap)
        return QString("url(%1)").arg(IMAGE);
    return QLatin1Char('"') + value.toString() + QLatin1Char('"');
}

bool holds(const QMetaProperty &property, const QWidget *widget, const QVariant &expected)
{
    const QVariant value = property.read(widget);
    if (property.userType() == QMetaType::QIcon)
        return value.value<QIcon>().cacheKey() == expected.value<QIcon>().cacheKey();
    return property.isEnumType() ? value.toInt() == expected.toInt() : value == expected;
}

bool takesByName(const QMetaProperty &property, QWidget *widget)
{
    const QVariant other = otherValue(property, property.read(widget), 3);
    return other.isValid() && widget->setProperty(property.name(), other)
        && holds(property, widget, other);
}

bool takesByStylesheet(const QMetaProperty &property, QWidget *widget)
{
    const QVariant other = otherValue(property, property.read(widget), 5);
    // The toolkit's stylesheets know no pair of numbers, and make icons of their own.
    for (const int type : { QMetaType::QSizeF, QMetaType::QPointF, QMetaType::QIcon }) {
        if (other.userType() == type)
            return true;
    }
    widget->setObjectName("walked"); // not its children
    widget->setStyleSheet(QString("#walked { qproperty-%1: %2; }")
                              .arg(QLatin1String(property.name()), cssText(property, other)));
    widget->ensurePolished();
    return holds(property, widget, other);
}

} // namespace

QStringList propertyFaults(QWidget *widget)
{
    QStringList faults;
    const QMetaObject *meta = widget->metaObject();
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        const QString name = QLatin1String(property.name());
        if (!takesByName(property, widget))
            faults += name + " does not keep a value written by name";
        if (!property.isScriptable(widget) || !property.isStored(widget))
            faults += name + " is not scriptable and stored";
        if (!property.isDesignable(widget)) // also keeps it out of stylesheets
            faults += name + " is not designable";
        else if (!takesByStylesheet(property, widget))
            faults += name + " does not take a value from a stylesheet";
    }
    return faults;
}
