// SPDX-License-Identifier: MIT
#include "ui/sliders/slideraccessible_p.h"

#include "ui/foundation/accessible_p.h"
#include "ui/sliders/vexoslider.h"

#include <QAccessibleWidget>

namespace vexo::hox::qt::ui {

namespace {

class SliderAccessible : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit SliderAccessible(VexoSlider *slider)
        : QAccessibleWidget(slider, QAccessible::Slider)
    {
        addControllingSignal(QStringLiteral("valueChanged(int)"));
    }

    void *interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;
    QVariant currentValue() const override { return real(slider()->value()); }
    void setCurrentValue(const QVariant &value) override;
    QVariant maximumValue() const override { return real(slider()->maximum()); }
    QVariant minimumValue() const override { return real(slider()->minimum()); }
    QVariant minimumStepSize() const override;

private:
    VexoSlider *slider() const { return static_cast<VexoSlider *>(widget()); }
    bool hasSteps() const { return slider()->tickInterval() > 1; }
    int real(int raw) const { return hasSteps() ? slider()->getRealSliderValue(raw) : raw; }
};

void *SliderAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString SliderAccessible::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? currentValue().toString() : QAccessibleWidget::text(kind);
}

// As the user moves the handle: the slider's own value stays.
void SliderAccessible::setCurrentValue(const QVariant &value)
{
    const int number = value.toInt();
    slider()->setRawValue(hasSteps() ? slider()->getTemporarySliderValue(number) : number);
}

QVariant SliderAccessible::minimumStepSize() const
{
    return hasSteps() ? slider()->tickInterval() : slider()->singleStep();
}

QAccessibleInterface *createSliderAccessible(const QString &class_name, QObject *object)
{
    auto *slider = qobject_cast<VexoSlider *>(object);
    const bool is_slider = class_name == QLatin1String(VexoSlider::staticMetaObject.className());
    return slider && is_slider ? new SliderAccessible(slider) : nullptr;
}

} // namespace

void makeSlidersAccessible()
{
    installAccessible<createSliderAccessible>();
}

} // namespace vexo::hox::qt::ui
