// SPDX-License-Identifier: MIT
#include "designer/formslider.h"

#include <QMetaProperty>

int FormSlider::qt_metacall(QMetaObject::Call call, int id, void **arguments)
{
    const bool is_read = call == QMetaObject::ReadProperty;
    const bool is_write = call == QMetaObject::WriteProperty;
    int *property = is_read || is_write ? real(metaObject()->property(id).name()) : nullptr;
    if (!property)
        return VexoSlider::qt_metacall(call, id, arguments);
    int *argument = static_cast<int *>(arguments[0]);
    if (is_read) {
        *argument = property == &m_value ? realValue() : *property;
    } else {
        *property = *argument;
        setMinimum(m_minimum);
        setMaximum(m_maximum);
        setTickInterval(m_step);
        setValue(m_value);
        finishSliderConfiguration();
    }
    return -1;
}

int FormSlider::realValue() const
{
    return m_step > 1 ? getRealSliderValue(value()) : value();
}

int *FormSlider::real(const char *property)
{
    const QLatin1String name(property);
    if (name == QLatin1String("minimum"))
        return &m_minimum;
    if (name == QLatin1String("maximum"))
        return &m_maximum;
    if (name == QLatin1String("tickInterval"))
        return &m_step;
    return name == QLatin1String("value") ? &m_value : nullptr;
}
