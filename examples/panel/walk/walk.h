#pragma once
// SPDX-License-Identifier: MIT

#include <functional>

class PanelWindow;
class QString;

/// A visitor's walk through all screens of \a panel, which is shown at its start screen, in
/// English, with a finger that trembles, and bounces when it lifts. After each step it calls \a
/// note with what was done. At its end the update runs. Throws std::runtime_error when something
/// that is to be touched is not there, or a touch does not lead where it should.
void walk(PanelWindow *panel, const std::function<void(const QString &step)> &note);
