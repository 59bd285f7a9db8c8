#pragma once
// SPDX-License-Identifier: MIT

#include <QString>

class QWidget;

namespace vexo::hox::qt::ui {

/// Gives the \a property of \a widget, a text that is shown or read out, the translation that
/// \a text returns, and does so again when the application's language changes. What the
/// application has put there itself stays.
void followLanguage(QWidget *widget, const char *property, QString (*text)());

} // namespace vexo::hox::qt::ui
