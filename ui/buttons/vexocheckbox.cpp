// SPDX-License-Identifier: MIT
#include "ui/buttons/vexocheckbox.h"

#include "ui/buttons/row/choicepress_p.h"
#include "ui/buttons/tone_p.h"

namespace vexo::hox::qt::ui {

VexoCheckBox::VexoCheckBox(QWidget *parent)
    : QCheckBox(parent)
    , m_delegator(VexoFeedbackDelegator::tone_delegator)
    , m_tap_limit(std::make_unique<TapLimit>(8))
{
    setupConnections();
}

VexoCheckBox::~VexoCheckBox() = default;

int VexoCheckBox::mouseMoveDelta() const
{
    return m_tap_limit->px();
}

void VexoCheckBox::setMouseMoveDelta(int px)
{
    m_tap_limit->setPx(px);
}

void VexoCheckBox::setupConnections()
{
    connectTone(this, &QAbstractButton::pressed, m_delegator.data());
}

void VexoCheckBox::toggleButton()
{
    ChoicePress::toggle(this);
}

void VexoCheckBox::mousePressEvent(QMouseEvent *event)
{
    ChoicePress::begin(this, event);
}

void VexoCheckBox::mouseReleaseEvent(QMouseEvent *event)
{
    ChoicePress::end(this, *event);
}

void VexoCheckBox::mouseMoveEvent(QMouseEvent *event)
{
    Press::move(this, event->globalPos(), *m_tap_limit);
}

} // namespace vexo::hox::qt::ui
