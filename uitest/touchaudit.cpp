// SPDX-License-Identifier: MIT
#include "uitest/panelaudit.h"

#include "ui/buttons/easyaccessbutton.h"
#include "uitest/reachmap_p.h"
#include "uitest/targetlist_p.h"
#include "uitest/touchtarget_p.h"
#include "uitest/widgetpath_p.h"

#include <cmath>

namespace vexo::hox::qt::uitest {

namespace {

/// A target with what of it a finger reaches.
struct Target
{
    QWidget *widget;
    TouchPart part;
    QRect px; // of the window
    QSizeF mm;
    const QWidget *sheet;

    double smaller() const { return qMin(mm.width(), mm.height()); }
};

// A measure in mm was cut to whole px, which is none of the application's fault.
bool isBelow(double mm, double limit_mm, double pixel_mm)
{
    const double tolerance_mm = 0.001; // of single precision
    return mm < limit_mm - pixel_mm + tolerance_mm;
}

bool isBelow(const QSizeF &mm, double limit_mm)
{
    const QSizeF pixel = mmOf(QSize(1, 1));
    return isBelow(mm.width(), limit_mm, pixel.width())
        || isBelow(mm.height(), limit_mm, pixel.height());
}

Target targetOf(const QWidget *window, QWidget *widget, const TouchPart &part, const ReachMap &map)
{
    const QRect place = placeIn(window, widget, part.px);
    const QRect px = widestRect(map.reach(widget) & place);
    const QSize size = px.size().boundedTo(map.limit(widget));
    return { widget, part, px.isEmpty() ? place : px, px.isEmpty() ? QSizeF(0, 0) : mmOf(size),
        map.sheet(widget) };
}

QVector<Target> targetsIn(QWidget *window)
{
    const Widgets widgets = touchTargets(window);
    QSet<const QWidget *> taking;
    for (const QWidget *widget : widgets)
        taking.insert(widget);
    const ReachMap map(window, taking);
    QVector<Target> targets;
    for (QWidget *widget : widgets) {
        const QVector<TouchPart> parts = touchParts(widget);
        for (const TouchPart &part : parts)
            targets.append(targetOf(window, widget, part, map));
    }
    return targets;
}

double easyMargin(const QWidget *widget)
{
    const auto *button = dynamic_cast<const ui::EasyAccessButton *>(widget);
    const QSizeF mm = mmOf(button ? QSize(1, 1) * button->easyMargin() : QSize(0, 0));
    return qMax(0.0, qMin(mm.width(), mm.height()));
}

QString number(double mm)
{
    return QString::number(mm, 'f', 1);
}

QString sizeText(const Target &target, double limit_mm, double margin_mm)
{
    const QString part
        = target.part.name.isEmpty() ? QString() : target.part.name + QLatin1Char(' ');
    if (target.mm.isEmpty())
        return part + QStringLiteral("cannot be touched: all of it is covered or cut off");
    const QString text = QStringLiteral("%1%2 to touch, less than %3 mm")
                             .arg(part, textOf(target.mm), QString::number(limit_mm));
    return margin_mm > 0
        ? text + QStringLiteral("; a finger may lift %1 mm beside it").arg(number(margin_mm))
        : text;
}

// The margin forgives a finger that slides, not one that lands beside the button.
Finding::Severity sizeSeverity(const Target &target, const TouchLimits &limits, double margin_mm)
{
    const QSizeF eased = target.mm + QSizeF(2 * margin_mm, 2 * margin_mm);
    const bool is_error = isBelow(target.mm, limits.error_mm)
        && (target.mm.isEmpty() || margin_mm == 0 || isBelow(eased, limits.error_mm));
    return is_error ? Finding::Error : Finding::Warning;
}

void checkSize(const Target &target, const TouchLimits &limits, QVector<Finding> *findings)
{
    if (!isBelow(target.mm, limits.warning_mm))
        return;
    const double margin_mm = easyMargin(target.widget);
    const double limit_mm
        = isBelow(target.mm, limits.error_mm) ? limits.error_mm : limits.warning_mm;
    findings->append(findingAt(target.widget, target.px, "touch-size",
        sizeSeverity(target, limits, margin_mm), sizeText(target, limit_mm, margin_mm)));
}

// Between the edges, px in each direction.
QSize gapBetween(const QRect &one, const QRect &other)
{
    const int x = qMax(one.left(), other.left()) - qMin(one.right(), other.right()) - 1;
    const int y = qMax(one.top(), other.top()) - qMin(one.bottom(), other.bottom()) - 1;
    return QSize(qMax(0, x), qMax(0, y));
}

double gapOf(const Target &one, const Target &other)
{
    const QSizeF mm = mmOf(gapBetween(one.px, other.px));
    return std::hypot(mm.width(), mm.height());
}

bool areNeighbours(const Target &one, const Target &other)
{
    return one.widget != other.widget && one.sheet == other.sheet && !other.mm.isEmpty()
        && !one.widget->isAncestorOf(other.widget) && !other.widget->isAncestorOf(one.widget);
}

int nearest(const QVector<Target> &targets, int index)
{
    int nearest = -1;
    for (int i = 0; i < targets.size(); ++i) {
        if (areNeighbours(targets.at(index), targets.at(i))
            && (nearest < 0
                || gapOf(targets.at(index), targets.at(i))
                    < gapOf(targets.at(index), targets.at(nearest))))
            nearest = i;
    }
    return nearest;
}

// Each small target with its nearest neighbour; of two that are that for each other the first.
void checkGap(const QVector<Target> &targets, int index, const TouchLimits &limits,
    QVector<Finding> *findings)
{
    const Target &target = targets.at(index);
    const int other = nearest(targets, index);
    if (other < 0 || target.mm.isEmpty() || !isBelow(target.mm, limits.warning_mm))
        return;
    const bool is_said = other < index && isBelow(targets.at(other).mm, limits.warning_mm)
        && nearest(targets, other) == index;
    const QSizeF pixel = mmOf(QSize(1, 1));
    const double gap_mm = gapOf(target, targets.at(other));
    if (is_said || !isBelow(gap_mm, limits.gap_mm, qMin(pixel.width(), pixel.height())))
        return;
    const QString text = QStringLiteral("%1 mm from %2, less than %3 mm, and %4 mm small");
    findings->append(findingAt(target.widget, target.px, "touch-gap", Finding::Warning,
        text.arg(number(gap_mm), widgetName(targets.at(other).widget),
            QString::number(limits.gap_mm), number(target.smaller()))));
}

// Of the parts of a widget, such as the rows of a list, the worst one speaks for all.
QVector<Target> worstParts(const QVector<Target> &targets)
{
    QVector<Target> worst;
    for (const Target &target : targets) {
        if (!worst.isEmpty() && worst.last().widget == target.widget
            && worst.last().part.name == target.part.name) {
            if (target.smaller() < worst.last().smaller())
                worst.last() = target;
        } else {
            worst.append(target);
        }
    }
    return worst;
}

} // namespace

TouchLimits TouchLimits::gloves()
{
    const double mm = 19;
    TouchLimits limits;
    limits.error_mm = mm;
    limits.warning_mm = mm;
    return limits;
}

QVector<Finding> PanelAudit::touchSizes(QWidget *window, const TouchLimits &limits)
{
    QVector<Finding> findings;
    if (!window || !window->isVisible())
        return findings;
    const QVector<Target> targets = targetsIn(window);
    const QVector<Target> worst = worstParts(targets);
    for (const Target &target : worst)
        checkSize(target, limits, &findings);
    for (int i = 0; i < targets.size(); ++i)
        checkGap(targets, i, limits, &findings);
    return findings;
}

} // namespace vexo::hox::qt::uitest
