// SPDX-License-Identifier: MIT
#include "ui/buttons/vexofeedbackdelegator.h"

namespace vexo::hox::qt::ui {

VexoFeedbackDelegator *VexoFeedbackDelegator::tone_delegator = nullptr;

VexoFeedbackDelegator::VexoFeedbackDelegator(QObject *parent)
    : QObject(parent)
{
    Q_UNUSED(m_active)
}

VexoFeedbackDelegator::~VexoFeedbackDelegator()
{
    if (tone_delegator == this)
        tone_delegator = nullptr;
}

} // namespace vexo::hox::qt::ui
