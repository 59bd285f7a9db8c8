// SPDX-License-Identifier: MIT
#include "uitest/touchinput_p.h"

#include <QTouchDevice>

#include <private/qhighdpiscaling_p.h>
#include <qpa/qwindowsysteminterface.h>
#include <qpa/qwindowsysteminterface_p.h>

namespace vexo::hox::qt::uitest {

namespace {

qint64 clock_ms = 0;
bool is_down = false;

// The toolkit owns the devices, until the application ends; there may be another one afterwards.
QTouchDevice *touchDevice()
{
    const QString name = QStringLiteral("finger");
    for (const QTouchDevice *device : QTouchDevice::devices()) {
        if (device->name() == name)
            return const_cast<QTouchDevice *>(device);
    }
    auto *device = new QTouchDevice;
    device->setName(name);
    device->setType(QTouchDevice::TouchScreen);
    device->setCapabilities(QTouchDevice::Position);
    QWindowSystemInterface::registerTouchDevice(device);
    return device;
}

} // namespace

TouchInput::TouchInput(QWindow *window)
    : m_window(window)
{
}

void TouchInput::pass(int ms)
{
    clock_ms += ms;
}

// The toolkit compares the times of a touch with those of other input.
void TouchInput::pause(int ms)
{
    clock_ms = qMax(clock_ms, QWindowSystemInterfacePrivate::eventTime.elapsed()) + ms;
}

void TouchInput::press(const QPointF &at)
{
    if (is_down)
        lift();
    m_at = at;
    report(Qt::TouchPointPressed);
}

void TouchInput::move(const QPointF &at)
{
    m_at = at;
    report(Qt::TouchPointMoved);
}

void TouchInput::lift()
{
    report(Qt::TouchPointReleased);
}

void TouchInput::report(Qt::TouchPointState state)
{
    if (!m_window || !m_window->handle())
        return;
    is_down = state != Qt::TouchPointReleased;
    QWindowSystemInterface::TouchPoint point;
    point.id = 1;
    point.state = state;
    point.pressure = is_down ? 1 : 0;
    const QPointF place = m_window->mapToGlobal(QPoint(0, 0)) + m_at;
    point.area = QHighDpi::toNativePixels(
        QRectF(place, QSizeF(1, 1)).translated(-.5, -.5), m_window.data());
    QWindowSystemInterface::handleTouchEvent(m_window, ulong(clock_ms), touchDevice(), { point });
    QWindowSystemInterface::flushWindowSystemEvents();
}

} // namespace vexo::hox::qt::uitest
