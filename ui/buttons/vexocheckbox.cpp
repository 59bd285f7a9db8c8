#include "ui/buttons/vexocheckbox.h"

#include "ui/buttons/swipeguard_p.h"
#include "ui/buttons/tone_p.h"

#include <QMouseEvent>

namespace vexo::hox::qt::ui {

VexoCheckBox::VexoCheckBox(QWidget *parent)
    : QCheckBox(parent)
    , m_delegator(VexoFeedbackDelegator::tone_delegator)
    , m_guard(std::make_unique<SwipeGuard>(8))
{
    setupConnections();
}

VexoCheckBox::~VexoCheckBox() = default;

int VexoCheckBox::mouseMoveDelta() const
{
    return m_guard->threshold();
}

void VexoCheckBox::setMouseMoveDelta(int px)
{
    m_guard->setThreshold(px);
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
    m_guard->press(event->globalPos());
    Q_EMIT pressed();
}

void VexoCheckBox::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_guard->release(event->globalPos()))
        toggleButton();
}

void VexoCheckBox::mouseMoveEvent(QMouseEvent *event)
{
    m_guard->move(event->globalPos());
}

} // namespace vexo::hox::qt::ui
