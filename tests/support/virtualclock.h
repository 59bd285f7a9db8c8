#pragma once
// SPDX-License-Identifier: MIT

#include "support/testcase.h"

/// The clock of a test: from start() on it moves only as it is told, and by a little at each look.
/// So what the toolkit times, as its scroller does, is the same on each machine, and waiting takes
/// no time. Sources that use it are linked with virtualclock.cpp.
namespace virtualclock {

void start();
/// Of now.
int ms();
/// Lets \a ms pass, and what is due meanwhile happen.
void pass(int ms);

} // namespace virtualclock

/// Base of the tests in which no real time passes.
class VirtualTimeTestCase : public TestCase
{
protected:
    VirtualTimeTestCase() { virtualclock::start(); }
};
