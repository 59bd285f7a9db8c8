// SPDX-License-Identifier: MIT
#include "uitest/panelaudit.h"

#include "uitest/targetlist_p.h"

#include <QAbstractSlider>
#include <QAccessible>
#include <QSizeGrip>
#include <QSplitter>

namespace vexo::hox::qt::uitest {

namespace {

const int most_children = 60; // of one widget that are asked

// They only move what has a name.
bool needsNone(const QWidget *widget)
{
    return qobject_cast<const QSplitterHandle *>(widget) || widget->inherits("QScrollBar")
        || qobject_cast<const QSizeGrip *>(widget);
}

bool saysNothing(QAccessibleInterface *interface)
{
    return interface->text(QAccessible::Name).trimmed().isEmpty();
}

bool isPlainRole(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::NoRole:
    case QAccessible::Client:
    case QAccessible::Pane:
    case QAccessible::Grouping:
    case QAccessible::StaticText:
    case QAccessible::Graphic:
    case QAccessible::Window:
        return true;
    default:
        return false;
    }
}

// A list, a tab bar and a menu are named by what is in them.
bool isNamedByItsItems(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::List:
    case QAccessible::Table:
    case QAccessible::Tree:
    case QAccessible::PageTabList:
    case QAccessible::MenuBar:
    case QAccessible::PopupMenu:
        return true;
    default:
        return false;
    }
}

int namelessItems(QAccessibleInterface *interface)
{
    int nameless = 0;
    for (int i = 0; i < qMin(most_children, interface->childCount()); ++i) {
        QAccessibleInterface *child = interface->child(i);
        const bool is_item = child && child->isValid() && child->role() != QAccessible::Separator
            && child->role() != QAccessible::Pane; // the corner of a table
        if (is_item && !child->state().invisible && !child->state().disabled && saysNothing(child))
            ++nameless;
    }
    return nameless;
}

// What assistive technology sees in place of a part that it does not see, such as a row of its box.
QAccessibleInterface *shownFor(QAccessibleInterface *interface)
{
    QAccessibleInterface *above = interface->parent();
    while (above && above->role() != QAccessible::Application) {
        // A table prints a warning about what is no cell of it.
        if (!above->tableInterface() && above->indexOfChild(interface) >= 0)
            return interface;
        interface = above;
        above = interface->parent();
    }
    return interface;
}

QString nameFault(QAccessibleInterface *interface)
{
    if (isNamedByItsItems(interface->role())) {
        const int nameless = namelessItems(interface);
        return nameless == 0 ? QString()
                             : QStringLiteral("%1 of its items have no name").arg(nameless);
    }
    return saysNothing(interface) ? QStringLiteral("has no name") : QString();
}

} // namespace

QVector<Finding> PanelAudit::names(QWidget *window)
{
    QVector<Finding> findings;
    const Widgets targets = touchTargets(window);
    for (QWidget *widget : targets) {
        QAccessibleInterface *interface = widget && !needsNone(widget)
            ? QAccessible::queryAccessibleInterface(widget)
            : nullptr;
        if (!interface)
            continue;
        interface = shownFor(interface);
        const QRect px = placeIn(window, widget, widget->rect());
        const auto complain
            = [&](const char *rule, Finding::Severity severity, const QString &text) {
                  findings.append(findingAt(widget, px, rule, severity,
                      text + QStringLiteral(" for assistive technology")));
              };
        const QString fault = nameFault(interface);
        if (!fault.isEmpty())
            complain("accessible-name", Finding::Error, fault);
        if (isPlainRole(interface->role()))
            complain("accessible-role", Finding::Warning, QStringLiteral("is nothing to press"));
    }
    return findings;
}

} // namespace vexo::hox::qt::uitest
