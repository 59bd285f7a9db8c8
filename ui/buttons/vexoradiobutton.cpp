// SPDX-License-Identifier: MIT
#include "ui/buttons/vexoradiobutton.h"

#include "ui/buttons/row/choicepress_p.h"
#include "ui/buttons/tone_p.h"

namespace vexo::hox::qt::ui {

VexoRadioButton::VexoRadioButton(QWidget *parent)
    : QRadioButton(parent)
    , m_delegator(VexoFeedbackDelegator::tone_delegator)
    , m_tap_limit(std::make_unique<TapLimit>(8))
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
    ChoicePress::toggle(this);
}

void VexoRadioButton::mousePressEvent(QMouseEvent *event)
{
    ChoicePress::begin(this, event);
}

void VexoRadioButton::mouseReleaseEvent(QMouseEvent *event)
{
    ChoicePress::end(this, *event);
}

void VexoRadioButton::mouseMoveEvent(QMouseEvent *event)
{
    Press::move(this, event->globalPos(), *m_tap_limit);
}

} // namespace vexo::hox::qt::ui
