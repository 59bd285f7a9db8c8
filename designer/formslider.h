#pragma once
// SPDX-License-Identifier: MIT

#include <VexoSlider>

/// A VexoSlider whose properties are written by name, which otherwise would reach the underlying
/// slider alone: they become the real values of the slider, finished after each change.
class FormSlider : public vexo::hox::qt::ui::VexoSlider
{
public:
    using VexoSlider::VexoSlider;

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override;

private:
    int realValue() const;
    int *real(const char *property);

    int m_minimum = minimum();
    int m_maximum = maximum();
    int m_step = tickInterval();
    int m_value = value();
};
