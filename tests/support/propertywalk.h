#pragma once
// SPDX-License-Identifier: MIT

#include <QMetaType>
#include <QStringList>
#include <QVariant>
#include <QWidget>

#include <functional>
#include <vector>

class QMetaProperty;

/// A class with properties, and how to make one on a parent.
struct WalkedClass
{
    const char *name;
    std::function<QWidget *(QWidget *parent)> make;
};

/// Every widget class of the public interface.
const std::vector<WalkedClass> &walkedClasses();
/// A row "walked" for each of them.
void addWalkedClasses();

/// A value for \a property that is not \a value; another one for each \a step. Invalid if the type
/// of the property is not known.
QVariant otherValue(const QMetaProperty &property, const QVariant &value, int step);

/// Walks the properties that the class of \a widget declares itself: each must be designable,
/// scriptable and stored, take another value by name and give it back, and take one from a
/// qproperty- rule of a stylesheet. Returns a line per fault.
QStringList propertyFaults(QWidget *widget);

Q_DECLARE_METATYPE(const WalkedClass *)
