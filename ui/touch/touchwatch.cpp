// SPDX-License-Identifier: MIT
#include "ui/touch/touchwatch_p.h"

#include "ui/touch/bouncefilter.h"
#include "ui/touch/taplimit_p.h"

#include <QApplication>
#include <QMouseEvent>

#include <utility>

namespace vexo::hox::qt::ui {

namespace {

// Also across windows: a dialog does not block those that belong to it.
bool belongsTo(const QWidget *widget, const QWidget *owner)
{
    while (widget && widget != owner)
        widget = widget->parentWidget();
    return widget;
}

bool isBlocked(const QWidget &widget)
{
    const QWidget *dialog = QApplication::activeModalWidget();
    if (!dialog || belongsTo(&widget, dialog))
        return false;
    return dialog->windowModality() == Qt::ApplicationModal || belongsTo(dialog, widget.window());
}

// A press that is not accepted goes on to the parents. One that a window gets has no widget yet.
bool isAside(const QObject &object, const QWidget &touched)
{
    if (!object.isWidgetType())
        return object.isWindowType();
    const auto *widget = static_cast<const QWidget *>(&object);
    return !belongsTo(widget, &touched) && !belongsTo(&touched, widget);
}

bool isPopupOver(const QObject &object, const QWidget &touched)
{
    if (!object.isWidgetType())
        return false;
    const auto *widget = static_cast<const QWidget *>(&object);
    return widget->windowType() == Qt::Popup && !belongsTo(&touched, widget);
}

bool isGrabbedFrom(const QWidget &touched)
{
    const QWidget *grabber = QWidget::mouseGrabber();
    return grabber && isAside(*grabber, touched);
}

bool isLostBy(const QObject &object, const QEvent &event, const QWidget &touched)
{
    switch (event.type()) {
    case QEvent::Hide:
    case QEvent::WindowBlocked:
    case QEvent::UngrabMouse:
        return &object == &touched;
    case QEvent::EnabledChange:
    case QEvent::FocusOut: // comes first, and the toolkit lets a button come up
        return &object == &touched && !touched.isEnabled();
    case QEvent::Show:
        return isPopupOver(object, touched);
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return isAside(object, touched);
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        return object.isWindowType() && isGrabbedFrom(touched);
    default:
        return false;
    }
}

} // namespace

TouchWatch::TouchWatch(QWidget *widget, std::function<void()> lost)
    : m_widget(widget)
    , m_lost(std::move(lost))
{
    BounceFilter::install();
    QCoreApplication::instance()->installEventFilter(this);
}

bool TouchWatch::isOutOfReach(const QWidget &widget)
{
    const QWidget *popup = QApplication::activePopupWidget();
    return !widget.isVisible() || (popup && !belongsTo(&widget, popup)) || isBlocked(widget);
}

bool TouchWatch::eventFilter(QObject *watched, QEvent *event)
{
    const QWidget *touched = m_widget;
    if (touched && (isLostBy(*watched, *event, *touched) || isSlide(*watched, *event)))
        end();
    else if (event->type() == QEvent::MouseButtonRelease && watched->isWindowType())
        endSoon();
    return false;
}

void TouchWatch::limitTo(const QPoint &place)
{
    m_place = place;
}

bool TouchWatch::isSlide(const QObject &object, const QEvent &event) const
{
    const bool is_told
        = event.type() == QEvent::MouseMove || event.type() == QEvent::MouseButtonRelease;
    return m_place && is_told && object.isWindowType()
        && leadsBeyondDragStart(static_cast<const QMouseEvent &>(event).globalPos() - *m_place);
}

// A touch that still goes on when the window has handled the release never gets it.
void TouchWatch::endSoon()
{
    m_soon.start(0, this);
}

void TouchWatch::timerEvent(QTimerEvent *)
{
    m_soon.stop();
    end();
}

void TouchWatch::end()
{
    const std::function<void()> lost = m_lost;
    lost(); // may delete this
}

} // namespace vexo::hox::qt::ui
