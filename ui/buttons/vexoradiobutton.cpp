// SPDX-License-Identifier: MIT
#include "ui/buttons/vexoradiobutton.h"

#include "ui/buttons/tone_p.h"
#include "ui/touch/press_p.h"

#include <QMouseEvent>

namespace vexo::hox::qt::ui {

VexoRadioButton::VexoRadioButton(QWidget *parent)
    : QRadioButton(parent)
    , m_delegator(VexoFeedbackDelegator::tone_delegator)
    , m_distance(std::make_unique<TapDistance>(8))
{
    setupConnections();
}

VexoRadioButton::~VexoRadioButton() = default;

void VexoRadioButton::setupConnections()
{
    connectTone(this, &QAbstractButton::pressed, m_delegator.data());
}

void VexoRadioButton::toggleButton()
{
    const QPointer<VexoRadioButton> self(this);
    toggle();
    if (self)
        Q_EMIT clicked(isChecked());
}

void VexoRadioButton::mousePressEvent(QMouseEvent *event)
{
    if (Press::begin(this, event, event->globalPos()))
        Q_EMIT pressed();
}

void VexoRadioButton::mouseReleaseEvent(QMouseEvent *event)
{
    if (Press::end(this, *event) == Press::Released)
        toggleButton();
}

void VexoRadioButton::mouseMoveEvent(QMouseEvent *event)
{
    Press::move(this, event->globalPos(), *m_distance);
}

} // namespace vexo::hox::qt::ui
