#pragma once
// SPDX-License-Identifier: MIT

namespace vexo::hox::qt::ui {

/// The looks of a VexoPushButton that can have images of their own.
enum ButtonState : int {
    Standard, ///< enabled and up; also the image of every state without one of its own
    Clicked, ///< down
    Inactive, ///< disabled
    Hidden ///< after hideImage(true)
};

} // namespace vexo::hox::qt::ui
