#pragma once
// SPDX-License-Identifier: MIT

#include <QStringList>

/// The classes among the public headers that forms can hold.
QStringList publicWidgetsForForms();
