// SPDX-License-Identifier: MIT
#include "ui/sliders/vexoslider.h"

#include "ui/buttons/tone_p.h"
#include "ui/foundation/accessible_p.h"
#include "ui/foundation/saturated_p.h"
#include "ui/foundation/withoutrepaint_p.h"
#include "ui/sliders/slideraccessible_p.h"
#include "ui/touch/press_p.h"

#include <QPointer>
#include <QSignalBlocker>

#include <limits>

namespace vexo::hox::qt::ui {

VexoSlider::VexoSlider(QWidget *parent)
    : QSlider(parent)
{
    installAccessible<VexoSlider, SliderAccessible>();
    setPageStep(0); // a press on the groove does not page
    connect(this, &QAbstractSlider::valueChanged, this, &VexoSlider::onValueChanged);
    connectTone(this, &QAbstractSlider::sliderPressed);
}

VexoSlider::VexoSlider(Qt::Orientation orientation, QWidget *parent)
    : VexoSlider(parent)
{
    setOrientation(orientation);
}

void VexoSlider::setMinimum(int minimum)
{
    m_minimum = minimum;
    QSlider::setMinimum(minimum);
}

void VexoSlider::setMaximum(int maximum)
{
    m_maximum = maximum;
    QSlider::setMaximum(maximum);
}

void VexoSlider::setTickInterval(int step)
{
    m_step = step;
    QSlider::setTickInterval(step);
}

void VexoSlider::setValue(int value)
{
    m_value = value;
    setRawValue(m_step < 2 ? value : getTemporarySliderValue(value));
}

void VexoSlider::finishSliderConfiguration()
{
    const QPointer<VexoSlider> self(this); // each step may emit valueChanged()
    if (m_step < 2)
        QSlider::setMaximum(m_maximum);
    else
        QSlider::setMinimum(0);
    if (self && m_step < 2)
        QSlider::setMinimum(m_minimum);
    else if (self)
        QSlider::setMaximum(getTemporarySliderValue(m_maximum));
    if (self)
        setValue(m_value);
}

void VexoSlider::setRawValue(int raw_value)
{
    QSlider::setValue(raw_value);
}

int VexoSlider::getTemporarySliderValue(int real) const
{
    const qint64 distance = qint64(real) - m_minimum;
    return saturated(m_step == 0 ? distance : distance / m_step);
}

int VexoSlider::getRealSliderValue(int index) const
{
    return saturated(m_minimum + qint64(index) * m_step);
}

void VexoSlider::onValueChanged(int value)
{
    Q_EMIT valueChanged(m_step > 1 ? getRealSliderValue(value) : value);
}

// The toolkit divides by zero in a range that is wider than an int.
void VexoSlider::sliderChange(SliderChange change)
{
    const int widest = saturated(qint64(minimum()) + std::numeric_limits<int>::max());
    if (change == SliderRangeChange && maximum() > widest)
        QSlider::setMaximum(widest);
    else
        QSlider::sliderChange(change);
}

void VexoSlider::mousePressEvent(QMouseEvent *event)
{
    if (!Press::begin(this, event))
        return;
    const QPointer<VexoSlider> self(this);
    QSlider::mousePressEvent(event);
    if (!self || isSliderDown())
        return;
    letGo(*event);
    Q_EMIT forwardPressEvent(event);
}

void VexoSlider::mouseReleaseEvent(QMouseEvent *event)
{
    const Press::End end = Press::end(this, *event);
    if (end == Press::TakenBack)
        undoDrag();
    if (isSliderDown())
        QSlider::mouseReleaseEvent(event);
    else if (event->button() == Qt::LeftButton && end != Press::TakenBack && end != Press::Late)
        Q_EMIT forwardReleaseEvent(event);
}

void VexoSlider::mouseMoveEvent(QMouseEvent *event)
{
    if (isSliderDown())
        QSlider::mouseMoveEvent(event);
    else if (!Press::wasTakenBack(this))
        Q_EMIT forwardMoveEvent(event);
}

// Of a handle that is dragged without tracking, and would set the value when it is let go.
void VexoSlider::undoDrag()
{
    const QSignalBlocker silence(this);
    setSliderPosition(value());
}

// The release of a press beside the handle does not reach the toolkit, which would page 20 times a
// second and look pressed until it came.
void VexoSlider::letGo(const QMouseEvent &press)
{
    QMouseEvent release(QEvent::MouseButtonRelease, press.localPos(), press.windowPos(),
        press.screenPos(), press.button(), Qt::NoButton, press.modifiers());
    withoutRepaint(this, [&] { QSlider::mouseReleaseEvent(&release); });
}

} // namespace vexo::hox::qt::ui
