// SPDX-License-Identifier: MIT
#include "ui/buttons/vexocheckbox.h"

#include "ui/buttons/tone_p.h"
#include "ui/touch/press_p.h"

#include <QMouseEvent>

namespace vexo::hox::qt::ui {

VexoCheckBox::VexoCheckBox(QWidget *parent)
    : QCheckBox(parent)
    , m_delegator(VexoFeedbackDelegator::tone_delegator)
    , m_distance(std::make_unique<TapDistance>(8))
{
    setupConnections();
}

VexoCheckBox::~VexoCheckBox() = default;

int VexoCheckBox::mouseMoveDelta() const
{
    return m_distance->px();
}

void VexoCheckBox::setMouseMoveDelta(int px)
{
    m_distance->setPx(px);
}

void VexoCheckBox::setupConnections()
{
    connectTone(this, &QAbstractButton::pressed, m_delegator.data());
}

void VexoCheckBox::toggleButton()
{
    const QPointer<VexoCheckBox> self(this);
    toggle();
    if (self)
        Q_EMIT clicked(isChecked());
}

void VexoCheckBox::mousePressEvent(QMouseEvent *event)
{
    if (Press::begin(this, event, event->globalPos()))
        Q_EMIT pressed();
}

void VexoCheckBox::mouseReleaseEvent(QMouseEvent *event)
{
    if (Press::end(this, *event) == Press::Released)
        toggleButton();
}

void VexoCheckBox::mouseMoveEvent(QMouseEvent *event)
{
    Press::move(this, event->globalPos(), *m_distance);
}

} // namespace vexo::hox::qt::ui
