#pragma once
// SPDX-License-Identifier: MIT

#include "ui/buttons/vexofeedbackdelegator.h"

namespace vexo::hox::qt::ui {

/// Lets \a pressed of \a sender ring \a delegator; without one the widget stays silent. Once
/// connected, a further call does nothing.
template <typename Sender, typename Signal>
void connectTone(const Sender *sender, Signal pressed, const VexoFeedbackDelegator *delegator)
{
    if (delegator)
        QObject::connect(
            sender, pressed, delegator, &VexoFeedbackDelegator::tone, Qt::UniqueConnection);
}

/// The same with the feedback delegator that is installed at this moment.
template <typename Sender, typename Signal>
void connectTone(const Sender *sender, Signal pressed)
{
    connectTone(sender, pressed, VexoFeedbackDelegator::tone_delegator);
}

} // namespace vexo::hox::qt::ui
