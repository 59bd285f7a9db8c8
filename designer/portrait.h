#pragma once
// SPDX-License-Identifier: MIT

#include <QIcon>

struct FormClass;

/// An icon that the class draws itself: a widget of it, made as large as an icon.
QIcon portrait(const FormClass &portrayed);
