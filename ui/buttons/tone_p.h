#pragma once
// SPDX-License-Identifier: MIT

#include "ui/buttons/vexofeedbackdelegator.h"

namespace vexo::hox::qt::ui {

/// Lets \a pressed of \a sender ring \a delegator, else the one that is installed at this moment;
/// without one the widget stays silent. Once connected, a further call does nothing.
template <typename Sender, typename Signal>
void connectTone(const Sender *sender, Signal pressed,
    const VexoFeedbackDelegator *delegator = VexoFeedbackDelegator::tone_delegator)
{
    if (delegator)
        QObject::connect(
            sender, pressed, delegator, &VexoFeedbackDelegator::tone, Qt::UniqueConnection);
}

/// The same for a widget without such a signal: rings once the event is handled that goes on.
inline void ringSoon(VexoFeedbackDelegator *delegator)
{
    if (delegator)
        QMetaObject::invokeMethod(delegator, "tone", Qt::QueuedConnection);
}

} // namespace vexo::hox::qt::ui
