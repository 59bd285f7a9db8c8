#pragma once
// SPDX-License-Identifier: MIT

#include <QByteArray>

namespace vexo::hox::qt::ui {

/// Keeps the library loaded to the end of the process in which \a bytes lie as constants, whoever
/// closes it. False where they lie in none, such as those of a bundle that was read from a file.
bool keepLoaded(const QByteArray &bytes);

/// Gives the pages of constants in a library back to the system, which brings them in again from
/// its file when they are next read. Does nothing where they come from no file.
void giveBack(const QByteArray &constants);

} // namespace vexo::hox::qt::ui
