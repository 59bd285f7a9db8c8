// SPDX-License-Identifier: MIT
//! [page]
#include <VexoFeedbackDelegator>

#include <functional>

using namespace vexo::hox::qt::ui;

class Tone : public VexoFeedbackDelegator
{
public:
    std::function<void()> play;

    void tone() override { play(); }
    void down() override { }
    void up() override { }
};

// Before the first screen is built: each press of its buttons plays the sound.
VexoFeedbackDelegator *installTone(const std::function<void()> &play)
{
    auto *tone = new Tone;
    tone->play = play;
    VexoFeedbackDelegator::tone_delegator = tone;
    return tone;
}
//! [page]
