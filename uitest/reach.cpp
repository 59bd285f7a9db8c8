// SPDX-License-Identifier: MIT
#include "uitest/reach_p.h"

#include "uitest/widgetpath_p.h"

#include <QApplication>
#include <QWidget>

namespace vexo::hox::qt::uitest {

namespace {

bool isIn(const QWidget *part, const QWidget *whole)
{
    return part && (part == whole || whole->isAncestorOf(part));
}

// A popup takes each touch; a dialog those of the windows that it blocks.
const QWidget *blocker(const QWidget *window)
{
    if (const QWidget *popup = QApplication::activePopupWidget())
        return popup == window ? nullptr : popup;
    const QWidget *dialog = QApplication::activeModalWidget();
    const bool is_blocked = dialog && dialog != window && !dialog->isAncestorOf(window);
    return is_blocked ? dialog : nullptr;
}

QString say(const QString &sentence, const QWidget *first, const QWidget *second)
{
    return sentence.arg(widgetName(first), widgetName(second));
}

} // namespace

QString hindrance(const QWidget *window, const QWidget *target, const QPoint &at)
{
    if (!isIn(target, window) || target->window() != window->window())
        return say(QStringLiteral("%1 is no part of %2"), target, window);
    if (!target->isVisible())
        return say(QStringLiteral("%1 is not visible in %2"), target, window);
    if (!window->rect().contains(at))
        return say(QStringLiteral("%1 lies outside of %2"), target, window);
    if (const QWidget *other = blocker(window))
        return say(QStringLiteral("%1 is blocked by %2"), target, other);
    const QWidget *hit = window->childAt(at);
    if (!isIn(hit ? hit : window, target))
        return say(QStringLiteral("%1 is covered by %2"), target, hit ? hit : window);
    return QString();
}

} // namespace vexo::hox::qt::uitest
