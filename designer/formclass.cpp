// SPDX-License-Identifier: MIT
#include "designer/formclass.h"

#include <QScrollArea>

QByteArray FormClass::name() const
{
    const QByteArray qualified = meta->className();
    return qualified.mid(qualified.lastIndexOf(':') + 1);
}

QByteArray FormClass::toolkitBase() const
{
    const QMetaObject *base = meta;
    while (QByteArray(base->className()).contains("::"))
        base = base->superClass();
    return base->className();
}

bool FormClass::isScrollArea() const
{
    return meta->inherits(&QScrollArea::staticMetaObject);
}

bool FormClass::placesChildren() const
{
    return meta->indexOfMethod("addFromForm(QWidget*)") >= 0;
}
