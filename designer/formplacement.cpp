// SPDX-License-Identifier: MIT
#include "designer/formplacement.h"

#include <QBoxLayout>
#include <QEvent>
#include <QVariant>
#include <QWidget>

#include <algorithm>

Q_DECLARE_METATYPE(QWidgetList) // the type's name in Designer; QList<QWidget *> is another one

FormPlacement::FormPlacement(QWidget *container)
    : QObject(container)
{
    container->installEventFilter(this);
}

bool FormPlacement::eventFilter(QObject *watched, QEvent *event)
{
    // Later: the child may be under construction, or Designer has more to do with it.
    if (event->type() == QEvent::ChildAdded)
        QMetaObject::invokeMethod(
            this, [this] { place(); }, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

// In the order in which Designer will save them: what comes back by an undo stands at the end of
// children().
void FormPlacement::place()
{
    auto *container = static_cast<QWidget *>(parent());
    const auto saved = container->property("_q_widgetOrder").value<QWidgetList>();
    auto children = container->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    std::stable_sort(children.begin(), children.end(),
        [&saved](QWidget *a, QWidget *b) { return saved.indexOf(a) < saved.indexOf(b); });
    auto *column = qobject_cast<QBoxLayout *>(container->layout());
    for (QWidget *child : qAsConst(children)) {
        if (!saved.contains(child)) // its own
            continue;
        if (column)
            column->removeWidget(child);
        QMetaObject::invokeMethod(container, "addFromForm", Q_ARG(QWidget *, child));
    }
}

// By name: the toolkit's library of Designer's interfaces is not there where forms are loaded.
bool isInForm(const QWidget *widget)
{
    while (widget && !widget->inherits("QDesignerFormWindowInterface"))
        widget = widget->parentWidget();
    return widget;
}
