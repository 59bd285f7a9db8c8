// SPDX-License-Identifier: MIT
#include "uitest/widgetwalk_p.h"

#include "ui/foundation/scalinginfo.h"
#include "uitest/widgetpath_p.h"

#include <QAbstractScrollArea>
#include <QScrollBar>
#include <QScroller>

namespace vexo::hox::qt::uitest {

namespace {

void appendShown(QWidget *widget, Widgets *shown)
{
    shown->append(widget);
    const QObjectList children = widget->children();
    for (QObject *object : children) {
        auto *child = qobject_cast<QWidget *>(object);
        if (child && !child->isWindow() && child->isVisible())
            appendShown(child, shown);
    }
}

} // namespace

Widgets shownWidgets(QWidget *window)
{
    Widgets shown;
    if (window && window->isVisible())
        appendShown(window, &shown);
    return shown;
}

QRect placeIn(const QWidget *window, const QWidget *widget, const QRect &px)
{
    return px.translated(window->mapFromGlobal(widget->mapToGlobal(QPoint(0, 0))));
}

QSizeF mmOf(const QSize &px)
{
    const auto *scaling = ui::ScalingInfo::inst();
    return QSizeF(
        double(scaling->px2mm_X(float(px.width()))), double(scaling->px2mm_Y(float(px.height()))));
}

QRectF mmOf(const QRect &px)
{
    const QSizeF corner = mmOf(QSize(px.x(), px.y()));
    return QRectF(QPointF(corner.width(), corner.height()), mmOf(px.size()));
}

QString textOf(const QSizeF &mm)
{
    return QStringLiteral("%1 x %2 mm").arg(mm.width(), 0, 'f', 1).arg(mm.height(), 0, 'f', 1);
}

bool isScrolled(const QWidget *viewport, Qt::Orientation orientation)
{
    QWidget *parent = viewport->parentWidget();
    const auto *area = qobject_cast<const QAbstractScrollArea *>(parent);
    if (!area || area->viewport() != viewport)
        return false;
    const QScrollBar *bar
        = orientation == Qt::Horizontal ? area->horizontalScrollBar() : area->verticalScrollBar();
    return bar->maximum() > bar->minimum()
        && (bar->isVisible() || QScroller::hasScroller(area->viewport())
            || QScroller::hasScroller(parent));
}

bool isScrolled(const QWidget *viewport)
{
    return isScrolled(viewport, Qt::Horizontal) || isScrolled(viewport, Qt::Vertical);
}

Finding findingAt(QWidget *widget, const QRect &px, const char *rule, Finding::Severity severity,
    const QString &text)
{
    Finding finding;
    finding.severity = severity;
    finding.rule = QLatin1String(rule);
    finding.widget = widget;
    finding.where = widgetPath(widget);
    finding.mm = mmOf(px);
    finding.text = text;
    return finding;
}

} // namespace vexo::hox::qt::uitest
