#pragma once

#include "ui/buttons/vexofeedbackdelegator.h"

namespace vexo::hox::qt::ui {

/// Lets \a pressed of \a sender ring the feedback delegator installed at this moment; without one
/// the widget stays silent.
template <typename Sender, typename Signal>
void connectTone(const Sender *sender, Signal pressed)
{
    if (const auto *delegator = VexoFeedbackDelegator::tone_delegator)
        QObject::connect(sender, pressed, delegator, &VexoFeedbackDelegator::tone);
}

} // namespace vexo::hox::qt::ui
