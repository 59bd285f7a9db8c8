#pragma once
// SPDX-License-Identifier: MIT

class PanelWindow;
class QString;

/// A picture of each screen, and of what comes over them, to \a folder. Throws std::runtime_error
/// when one cannot be written.
void takeShots(PanelWindow *panel, const QString &folder);
