#pragma once
// SPDX-License-Identifier: MIT

#include <QPoint>
#include <QString>

class QWidget;

namespace vexo::hox::qt::uitest {

/// Why a finger at \a at, px of \a window, does not reach \a target; empty if it does.
QString hindrance(const QWidget *window, const QWidget *target, const QPoint &at);

} // namespace vexo::hox::qt::uitest
