// SPDX-License-Identifier: MIT
#include "uitest/targetlist_p.h"

#include "uitest/touchtarget_p.h"

#include <algorithm>

namespace vexo::hox::qt::uitest {

namespace {

bool isPartOfOne(const QWidget *widget, const Widgets &targets)
{
    return std::any_of(targets.begin(), targets.end(), [=](const QWidget *target) {
        return includesItsChildren(target) && target->isAncestorOf(widget);
    });
}

// What shows how something looks, and no more.
bool letsThrough(const QWidget *widget)
{
    for (; widget; widget = widget->isWindow() ? nullptr : widget->parentWidget()) {
        if (widget->testAttribute(Qt::WA_TransparentForMouseEvents))
            return true;
    }
    return false;
}

bool holdsOther(const QWidget *widget, const Widgets &targets)
{
    return std::any_of(targets.begin(), targets.end(),
        [=](const QWidget *target) { return target != widget && widget->isAncestorOf(target); });
}

} // namespace

Widgets touchTargets(QWidget *window)
{
    Widgets targets;
    const Widgets shown = shownWidgets(window);
    for (QWidget *widget : shown) {
        if (widget && widget->isEnabled() && reactsToPress(widget) && !isPartOfOne(widget, targets)
            && !letsThrough(widget))
            targets.append(widget);
    }
    const auto end = std::remove_if(targets.begin(), targets.end(),
        [&](const QWidget *widget) { return isGuessed(widget) && holdsOther(widget, targets); });
    targets.erase(end, targets.end());
    return targets;
}

} // namespace vexo::hox::qt::uitest
