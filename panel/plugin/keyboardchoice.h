#pragma once
// SPDX-License-Identifier: MIT

namespace vexo::hox::qt::panel {
class OnScreenKeyboard;
}

/// Lets \a keyboard offer what the variable HOXQUI_KEYBOARDS lists, codes and files with commas
/// between: "de,en,/etc/panel/swiss.txt". A file that is broken is left out, with a warning.
void chooseLanguages(vexo::hox::qt::panel::OnScreenKeyboard *keyboard);
