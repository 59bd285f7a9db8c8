#include "ui/buttons/vexoradiobutton.h"

#include "ui/buttons/swipeguard_p.h"
#include "ui/buttons/tone_p.h"

#include <QMouseEvent>

namespace vexo::hox::qt::ui {

VexoRadioButton::VexoRadioButton(QWidget *parent)
    : QRadioButton(parent)
    , m_delegator(VexoFeedbackDelegator::tone_delegator)
    , m_guard(std::make_unique<SwipeGuard>(8))
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
    m_guard->press(event->globalPos());
    Q_EMIT pressed();
}

void VexoRadioButton::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_guard->release(event->globalPos()))
        toggleButton();
}

void VexoRadioButton::mouseMoveEvent(QMouseEvent *event)
{
    m_guard->move(event->globalPos());
}

} // namespace vexo::hox::qt::ui
