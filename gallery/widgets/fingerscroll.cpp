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

void scroll(QAbstractScrollArea *area, QScroller::ScrollerGestureType gesture)
{
    area->verticalScrollBar()->setStyleSheet(scrollBarSheet());
    QScroller::grabGesture(area->viewport(), gesture);
}

void stopAtTheEnds(QAbstractScrollArea *area, double press_delay_in_s)
{
    QScroller *scroller = QScroller::scroller(area->viewport());
    QScrollerProperties properties = scroller->scrollerProperties();
    properties.setScrollMetric(QScrollerProperties::MousePressEventDelay, press_delay_in_s);
    const auto overshoot = QVariant::fromValue(QScrollerProperties::OvershootAlwaysOff);
    properties.setScrollMetric(QScrollerProperties::VerticalOvershootPolicy, overshoot);
    properties.setScrollMetric(QScrollerProperties::HorizontalOvershootPolicy, overshoot);
    scroller->setScrollerProperties(properties);
}

} // namespace

void scrollByFinger(QAbstractScrollArea *area)
{
    scroll(area, QScroller::TouchGesture);
}

void scrollRowsByFinger(QAbstractScrollArea *area)
{
    scroll(area, QScroller::LeftMouseButtonGesture); // a touch becomes one, where rows take it
    stopAtTheEnds(area, 0.15);
}

void panByFinger(QAbstractScrollArea *area)
{
    QScroller::grabGesture(area->viewport(), QScroller::LeftMouseButtonGesture);
    stopAtTheEnds(area, 0);
}
