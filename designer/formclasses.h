#pragma once
// SPDX-License-Identifier: MIT

#include "designer/formclass.h"

#include <vector>

/// Each class of the library that has its place in a form, in the order of the widget box.
const std::vector<FormClass> &formClasses();
