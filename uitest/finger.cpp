// SPDX-License-Identifier: MIT
#include "uitest/finger.h"

#include "ui/foundation/scalinginfo.h"
#include "uitest/reach_p.h"
#include "uitest/touchinput_p.h"
#include "uitest/widgetwalk_p.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

#include <cmath>

namespace vexo::hox::qt::uitest {

namespace {

const int report_ms = 10;
const int tap_ms = 80;
const int rest_ms = 150; // a list that is scrolled stands still then
const int pause_ms = 600; // more than between the taps of a double one
const int bounce_contact_ms = 10;

QPointF pxOf(const QPointF &mm)
{
    const auto *scaling = ui::ScalingInfo::inst();
    return QPointF(
        double(scaling->mm2px_X(float(mm.x()))), double(scaling->mm2px_Y(float(mm.y()))));
}

QPointF centreOf(const QWidget *widget)
{
    const QSizeF mm = widget ? mmOf(widget->size()) : QSizeF();
    return QPointF(mm.width(), mm.height()) / 2;
}

double measure(double mm)
{
    return mm > 0 ? mm : 0; // NaN as well
}

// What the application has to do for it.
void passInTest(int ms)
{
    const QDeadlineTimer end(ms, Qt::PreciseTimer);
    do {
        QCoreApplication::processEvents();
        QThread::msleep(1);
    } while (!end.hasExpired());
}

} // namespace

struct Finger::Way
{
    QPointF by_mm;
    int ms = tap_ms;
    int rest_ms = 0;
    bool takes_time = false;
};

Finger::Finger(QWidget *window, quint32 seed)
    : m_window(window)
    , m_random(seed)
{
}

Finger &Finger::setJitter(double mm)
{
    m_jitter_mm = measure(mm);
    return *this;
}

Finger &Finger::setBounce(int ms)
{
    m_bounce_ms = qMax(0, ms);
    return *this;
}

Finger &Finger::setWiggle(double mm)
{
    m_wiggle_mm = measure(mm);
    return *this;
}

void Finger::tap(QWidget *target)
{
    touch(target, centreOf(target), Way());
}

void Finger::tap(QWidget *target, const QPointF &mm)
{
    touch(target, mm, Way());
}

void Finger::hold(QWidget *target, int ms)
{
    touch(target, centreOf(target), { QPointF(), ms, 0, true });
}

void Finger::slide(QWidget *target, const QPointF &from_mm, const QPointF &by_mm, int ms)
{
    touch(target, from_mm, { by_mm, ms, rest_ms, true });
}

void Finger::flick(QWidget *target, const QPointF &by_mm, int ms)
{
    touch(target, centreOf(target), { by_mm, ms, 0, true });
}

void Finger::slideOff(QWidget *target, Qt::Edge edge, double mm)
{
    const QPointF centre = centreOf(target);
    const bool is_level = edge == Qt::LeftEdge || edge == Qt::RightEdge;
    const double way = (is_level ? centre.x() : centre.y()) + mm;
    const double signed_way = edge == Qt::LeftEdge || edge == Qt::TopEdge ? -way : way;
    const QPointF by(is_level ? signed_way : 0, is_level ? 0 : signed_way);
    touch(target, centre, { by, 2 * tap_ms, 0, false });
}

void Finger::touch(QWidget *target, const QPointF &from_mm, const Way &way)
{
    if (!target || !m_window || !m_window->windowHandle()) {
        m_problem = QStringLiteral("there is no %1")
                        .arg(QLatin1String(target ? "window on the screen" : "target"));
        return;
    }
    const QPointF from = placeIn(m_window, target, target->rect()).topLeft() + pxOf(from_mm);
    m_problem = hindrance(m_window, target, QPoint(int(from.x()), int(from.y())));
    TouchInput input(m_window->windowHandle());
    TouchInput::pause(pause_ms);
    input.press(reported(from));
    wander(input, from, way);
    lift(input, from + pxOf(way.by_mm));
}

void Finger::wander(TouchInput &input, const QPointF &from, const Way &way)
{
    const QPointF by = pxOf(way.by_mm);
    const bool is_still = by.isNull() && m_jitter_mm == 0 && m_wiggle_mm == 0;
    const int reports = qMax(1, way.ms / report_ms);
    for (int i = 1; i <= reports + way.rest_ms / report_ms; ++i) {
        TouchInput::pass(report_ms);
        if (way.takes_time)
            passInTest(report_ms);
        if (!is_still)
            input.move(reported(wiggled(from + by * qMin(i, reports) / reports)));
    }
}

void Finger::lift(TouchInput &input, const QPointF &at)
{
    input.lift();
    if (m_bounce_ms == 0)
        return;
    TouchInput::pass(m_bounce_ms);
    input.press(reported(at));
    TouchInput::pass(bounce_contact_ms);
    input.lift();
}

// Off by an error that is normal in each direction, within a circle.
QPointF Finger::reported(const QPointF &px)
{
    if (m_jitter_mm == 0)
        return px;
    std::normal_distribution<double> error(0, m_jitter_mm);
    QPointF mm;
    do {
        mm = QPointF(error(m_random), error(m_random));
    } while (std::hypot(mm.x(), mm.y()) > 2 * m_jitter_mm);
    return px + pxOf(mm);
}

QPointF Finger::wiggled(const QPointF &px)
{
    if (m_wiggle_mm == 0)
        return px;
    std::uniform_real_distribution<double> part(0, 1);
    const double angle = 2 * M_PI * part(m_random);
    const double mm = m_wiggle_mm * std::sqrt(part(m_random));
    return px + pxOf(QPointF(std::cos(angle), std::sin(angle)) * mm);
}

} // namespace vexo::hox::qt::uitest
