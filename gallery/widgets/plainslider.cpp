// SPDX-License-Identifier: MIT
#include "gallery/widgets/plainslider.h"

#include "gallery/widgets/plainbutton.h"

#include <QPainter>
#include <QStyleOptionSlider>

PlainSlider::PlainSlider(const QSlider *original)
    : QSlider(original->orientation())
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    setRange(original->minimum(), original->maximum());
    setValue(original->value());
    connect(original, &QSlider::valueChanged, this, &QSlider::setValue);
}

void PlainSlider::paintEvent(QPaintEvent *)
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle;
    QPainter painter(this);
    plainStyle().drawComplexControl(QStyle::CC_Slider, &option, &painter);
}
