// SPDX-License-Identifier: MIT
#include "ui/video/videocapturepanning.h"

#include "ui/foundation/scalinginfo.h"
#include "ui/foundation/viewport_p.h"
#include "ui/touch/press_p.h"

#include <QMouseEvent>
#include <QMoveEvent>
#include <QPointer>
#include <QResizeEvent>
#include <QScrollBar>

#include <cstdlib>
#include <limits>

namespace vexo::hox::qt::ui {

namespace {

// The lowest number has no positive counterpart.
int magnitude(int px)
{
    return std::abs(qMax(px, -std::numeric_limits<int>::max()));
}

} // namespace

VideoCapturePanning::VideoCapturePanning(QWidget *parent)
    : QScrollArea(parent)
    , VexoLogging("P")
{
    setViewport(new Viewport);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(QFrame::NoFrame);
    setLineWidth(0);
    setWidgetResizable(true);
    if (isDebugging())
        Debug("Initialized video capture scroll area.");
    m_tap_timer.start();
}

void VideoCapturePanning::setPosition(const QPoint &position)
{
    verticalScrollBar()->setSliderPosition(magnitude(position.y()));
    horizontalScrollBar()->setSliderPosition(magnitude(position.x()));
}

void VideoCapturePanning::moveEvent(QMoveEvent *event)
{
    QWidget::moveEvent(event);
    const QPoint position = mapToGlobal(event->pos());
    Q_EMIT setViewportPos(uint(position.x()), uint(position.y()));
}

void VideoCapturePanning::resizeEvent(QResizeEvent *event)
{
    const QPointer<VideoCapturePanning> self(this);
    QScrollArea::resizeEvent(event);
    if (!self)
        return;
    const QSize px = event->size();
    Q_EMIT setViewportSize(uint(px.width()), uint(px.height()));
    const ScalingInfo &scaling = *ScalingInfo::inst();
    const double width_mm = double(scaling.px2mm_X(float(px.width())));
    if (self && width_mm > 0)
        Q_EMIT setAspectRatio(double(scaling.px2mm_Y(float(px.height()))) / width_mm);
}

void VideoCapturePanning::mousePressEvent(QMouseEvent *event)
{
    const qint64 longest_ms = 250;
    const QPointer<VideoCapturePanning> self(this);
    const bool is_second = m_tap_timer.isValid() && m_tap_timer.elapsed() <= longest_ms;
    const bool is_begun = Press::begin(this, event);
    // A press is for this widget alone, so it is handled as by one without content.
    QWidget::mousePressEvent(event); // NOLINT(bugprone-parent-virtual-call)
    if (!is_begun)
        return;
    m_tap_timer.start();
    if (is_second)
        Q_EMIT tap();
    if (!self)
        event->accept(); // else the toolkit goes on with the deleted widget
}

void VideoCapturePanning::mouseReleaseEvent(QMouseEvent *event)
{
    if (Press::end(this, *event) == Press::TakenBack)
        m_tap_timer.invalidate(); // was no tap
    QScrollArea::mouseReleaseEvent(event);
}

// The toolkit delivers the second of two quick presses at one place as this, and as nothing else.
void VideoCapturePanning::mouseDoubleClickEvent(QMouseEvent *event)
{
    mousePressEvent(event);
}

} // namespace vexo::hox::qt::ui
