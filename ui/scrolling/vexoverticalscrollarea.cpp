// SPDX-License-Identifier: MIT
#include "ui/scrolling/vexoverticalscrollarea.h"

#include "ui/foundation/viewport_p.h"
#include "ui/sliders/vexoslider.h"
#include "ui/touch/press_p.h"
#include "ui/touch/taplimit_p.h"
#include "ui/touch/touchwatch_p.h"

#include <QEasingCurve>
#include <QMouseEvent>
#include <QPointer>
#include <QScrollBar>
#include <QScrollerProperties>

#include <cmath>

namespace vexo::hox::qt::ui {

namespace {

void repaint(QWidget *widget)
{
    widget->update();
    const auto parts = widget->findChildren<QWidget *>(); // opaque ones are left out otherwise
    for (QWidget *part : parts)
        part->update();
}

// What lies over \a area of \a widget and is no part of it.
void repaintAbove(const QWidget *widget, QRect area)
{
    for (; !widget->isWindow(); widget = widget->parentWidget()) {
        area.translate(widget->pos());
        const QObjectList &siblings = widget->parentWidget()->children();
        // A parent that is being deleted does not list all of them any more.
        for (int i = siblings.size() - 1; i >= 0 && siblings.at(i) != widget; --i) {
            auto *above = qobject_cast<QWidget *>(siblings.at(i));
            const bool is_there = above && !above->isWindow() && above->isVisible();
            if (is_there && above->geometry().intersects(area))
                repaint(above);
        }
    }
}

// The scroller takes its pixels per metre from the screen; the panel's may have been told
// otherwise.
double stretchOfMetres(const QScroller &scroller)
{
    const double panel = double(ScalingInfo::inst()->mm2px_Y(1000));
    const double screen = scroller.pixelPerMeter().y();
    const bool is_same = screen <= 0 || std::abs(panel / screen - 1) < 0.02;
    return is_same ? 1 : panel / screen;
}

} // namespace

VexoVerticalScrollArea::VexoVerticalScrollArea(QWidget *parent, bool scroll_bar_enabled)
    : QScrollArea(parent)
    , m_scroller(QScroller::scroller(this))
    , m_scroll_bar_enabled(scroll_bar_enabled)
{
    setViewport(new Viewport);
    setScrollBarEnabled(m_scroll_bar_enabled);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::WheelFocus);
    setFrameShape(QFrame::NoFrame);
    setFrameShadow(QFrame::Plain);
    setLineWidth(0);
    setWidgetResizable(true);
    QScrollBar *across = horizontalScrollBar();
    // The toolkit sets the range anew whenever it lays out.
    connect(across, &QScrollBar::rangeChanged, across, [across] { across->setRange(0, 0); });
    tuneScroller();
    QScroller::grabGesture(this, QScroller::LeftMouseButtonGesture);
    connect(
        m_scroller, &QScroller::stateChanged, this, &VexoVerticalScrollArea::scrollerStateChanged);
    connect(m_scroller, &QScroller::stateChanged, this, &VexoVerticalScrollArea::watchTouch);
}

VexoVerticalScrollArea::~VexoVerticalScrollArea() = default;

void VexoVerticalScrollArea::setScrollBarEnabled(bool enabled)
{
    m_scroll_bar_enabled = enabled;
    setVerticalScrollBarPolicy(enabled ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
}

void VexoVerticalScrollArea::scrollToTop()
{
    verticalScrollBar()->setValue(0);
}

void VexoVerticalScrollArea::forwardSliderEvents(VexoSlider *slider)
{
    if (!slider)
        return;
    connect(slider, &VexoSlider::forwardPressEvent, this, &VexoVerticalScrollArea::press);
    connect(slider, &VexoSlider::forwardMoveEvent, this, &VexoVerticalScrollArea::move);
    connect(slider, &VexoSlider::forwardReleaseEvent, this, &VexoVerticalScrollArea::release);
}

// The toolkit does not scroll from where a slider lies, so it must not see the one that is touched.
void VexoVerticalScrollArea::press(QMouseEvent *event)
{
    const QPointer<QWidget> slider = qobject_cast<QWidget *>(sender());
    if (slider)
        slider->setAttribute(Qt::WA_TransparentForMouseEvents, true);
    passToScroller(QScroller::InputPress, event);
    if (slider)
        slider->setAttribute(Qt::WA_TransparentForMouseEvents, false);
}

void VexoVerticalScrollArea::move(QMouseEvent *event)
{
    passToScroller(QScroller::InputMove, event);
}

void VexoVerticalScrollArea::release(QMouseEvent *event)
{
    passToScroller(QScroller::InputRelease, event);
}

// The toolkit paints the strip that comes into sight over a dialog or a notice that lies there.
void VexoVerticalScrollArea::scrollContentsBy(int dx, int dy)
{
    QScrollArea::scrollContentsBy(dx, dy);
    const QRect view = viewport()->rect();
    const QRegion strip = QRegion(view) - view.translated(0, dy);
    repaintAbove(viewport(), strip.boundingRect());
}

// Seconds, metres, metres per second.
void VexoVerticalScrollArea::tuneScroller()
{
    using Properties = QScrollerProperties;
    const double stretch = stretchOfMetres(*m_scroller);
    Properties properties = m_scroller->scrollerProperties();
    properties.setScrollMetric(
        Properties::VerticalOvershootPolicy, QVariant::fromValue(Properties::OvershootAlwaysOff));
    properties.setScrollMetric(Properties::MousePressEventDelay, 0.15F);
    properties.setScrollMetric(Properties::MinimumVelocity, 0.1 * stretch);
    properties.setScrollMetric(Properties::MaximumVelocity, 0.7 * stretch);
    properties.setScrollMetric(Properties::DecelerationFactor, 0.5);
    properties.setScrollMetric(Properties::FrameRate, int(Properties::Fps20));
    properties.setScrollMetric(Properties::ScrollingCurve, int(QEasingCurve::Linear));
    properties.setScrollMetric(Properties::DragStartDistance, DRAG_START_MM / 1000 * stretch);
    properties.setScrollMetric(Properties::DragVelocitySmoothingFactor, 0.1);
    m_scroller->setScrollerProperties(properties);
}

void VexoVerticalScrollArea::watchTouch(QScroller::State state)
{
    if (state != QScroller::Pressed && state != QScroller::Dragging)
        m_touch.reset();
    else if (!m_touch)
        m_touch = std::make_unique<TouchWatch>(this, [this] { letGo(); });
}

// A scroller that waits for a release which does not come would swallow the next tap.
void VexoVerticalScrollArea::letGo()
{
    const bool is_alone = testAttribute(Qt::WA_NoMousePropagation);
    setAttribute(Qt::WA_NoMousePropagation, true);
    m_scroller->stop();
    Press::dropHeldBack(this);
    setAttribute(Qt::WA_NoMousePropagation, is_alone);
}

void VexoVerticalScrollArea::passToScroller(QScroller::Input input, const QMouseEvent *event)
{
    if (event)
        m_scroller->handleInput(input, positionOf(*event), qint64(event->timestamp()));
}

// In this area and not in the slider: the slider moves with the list, and the gesture of the area
// reports the same finger.
QPointF VexoVerticalScrollArea::positionOf(const QMouseEvent &event) const
{
    const auto *slider = qobject_cast<const QWidget *>(sender());
    const QPoint origin = slider ? mapFromGlobal(slider->mapToGlobal(QPoint())) : QPoint();
    return origin + event.localPos();
}

} // namespace vexo::hox::qt::ui
