#pragma once
// SPDX-License-Identifier: MIT

#include "ui/sliders/vexoslider.h"

#include <QAccessibleWidget>

namespace vexo::hox::qt::ui {

/// How assistive technology sees a VexoSlider: with real values, as its user does. The toolkit
/// would tell and take the index of a step.
class SliderAccessible : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit SliderAccessible(VexoSlider *slider)
        : QAccessibleWidget(slider, QAccessible::Slider)
    {
        addControllingSignal(QStringLiteral("valueChanged(int)"));
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? currentValue().toString()
                                          : QAccessibleWidget::text(kind);
    }
    QVariant currentValue() const override { return real(slider()->value()); }
    /// As the user moves the handle: the slider's own value stays.
    void setCurrentValue(const QVariant &value) override
    {
        const int number = value.toInt();
        slider()->setRawValue(hasSteps() ? slider()->getTemporarySliderValue(number) : number);
    }
    QVariant maximumValue() const override { return real(slider()->maximum()); }
    QVariant minimumValue() const override { return real(slider()->minimum()); }
    QVariant minimumStepSize() const override
    {
        return hasSteps() ? slider()->tickInterval() : slider()->singleStep();
    }

private:
    VexoSlider *slider() const { return static_cast<VexoSlider *>(widget()); }
    bool hasSteps() const { return slider()->tickInterval() > 1; }
    int real(int raw) const { return hasSteps() ? slider()->getRealSliderValue(raw) : raw; }
};

} // namespace vexo::hox::qt::ui
