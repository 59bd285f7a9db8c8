// SPDX-License-Identifier: MIT
#include "gallery/widgets/fingerscroll.h"

#include "gallery/measures.h"

#include <VexoColors>

#include <QAbstractScrollArea>
#include <QScrollBar>
#include <QScroller>

using vexo::hox::qt::ui::VexoColors;

namespace {

QString scrollBarSheet()
{
    const QString sheet = "QScrollBar { background: transparent; width: %1px; margin: 0; }"
                          "QScrollBar::handle { background: %2; min-height: %3px; margin: %4px;"
                          " border-radius: %4px; }"
                          "QScrollBar::add-line, QScrollBar::sub-line { height: 0; }"
                          "QScrollBar::add-page, QScrollBar::sub-page { background: none; }";
    return sheet.arg(mmX(2.4)).arg(VexoColors::C6.name()).arg(mmY(10)).arg(mmX(0.6));
}

} // namespace

void setNarrowScrollBar(QAbstractScrollArea *area)
{
    area->verticalScrollBar()->setStyleSheet(scrollBarSheet());
}

void scrollByFinger(QAbstractScrollArea *area)
{
    setNarrowScrollBar(area);
    QScroller::grabGesture(area->viewport(), QScroller::TouchGesture);
}

void panByFinger(QAbstractScrollArea *area)
{
    QScroller::grabGesture(area->viewport(), QScroller::LeftMouseButtonGesture);
    QScroller *scroller = QScroller::scroller(area->viewport());
    QScrollerProperties properties = scroller->scrollerProperties();
    properties.setScrollMetric(QScrollerProperties::MousePressEventDelay, 0);
    const auto overshoot = QVariant::fromValue(QScrollerProperties::OvershootAlwaysOff);
    properties.setScrollMetric(QScrollerProperties::VerticalOvershootPolicy, overshoot);
    properties.setScrollMetric(QScrollerProperties::HorizontalOvershootPolicy, overshoot);
    scroller->setScrollerProperties(properties);
}
