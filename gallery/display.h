#pragma once
// SPDX-License-Identifier: MIT

#include <memory>

class QApplication;

/// Builds the application object. Without a display it says so in one line and leaves the process
/// with code 1, where the toolkit would abort. Keeps references to both arguments, as the
/// application object does.
std::unique_ptr<QApplication> openDisplay(int &argc, char **argv);
