#pragma once

#include <QStringList>

/// The classes among the public headers that forms can hold.
QStringList publicWidgetsForForms();
