#pragma once
// SPDX-License-Identifier: MIT

#include <QString>

class QWidget;

namespace vexo::hox::qt::uitest {

/// What a developer finds \a widget by: its class and what it is called, "VexoPushButton \"OK\"".
/// Its object name comes first, then its accessible name, then its text.
QString widgetName(const QWidget *widget);

/// The names of all from the window down to \a widget that have one, "SettingsPage > QCheckBox
/// \"wifi\"".
QString widgetPath(const QWidget *widget);

} // namespace vexo::hox::qt::uitest
