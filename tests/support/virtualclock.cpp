// SPDX-License-Identifier: MIT
#include "support/virtualclock.h"

#include <QCoreApplication>

#include <ctime>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

const long long ns_per_s = 1000000000;
const long long ns_per_look = 20000; // else a loop that waits would never end

thread_local bool is_virtual = false; // not for the thread that watches over the test
long long now_ns = 0;

int realTime(clockid_t clock, timespec *time)
{
    return int(syscall(SYS_clock_gettime, clock, time));
}

} // namespace

// In place of the C library's.
extern "C" int clock_gettime(clockid_t clock, timespec *time) noexcept
{
    if (!is_virtual || clock != CLOCK_MONOTONIC)
        return realTime(clock, time);
    now_ns += ns_per_look;
    time->tv_sec = time_t(now_ns / ns_per_s);
    time->tv_nsec = long(now_ns % ns_per_s);
    return 0;
}

// Who sleeps in the test itself lets the time pass.
extern "C" int nanosleep(const timespec *duration, timespec *left)
{
    if (!is_virtual)
        return int(syscall(SYS_nanosleep, duration, left));
    now_ns += duration->tv_sec * ns_per_s + duration->tv_nsec;
    return 0;
}

void virtualclock::start()
{
    if (is_virtual)
        return; // no timer of before would know of a time that runs back
    timespec time = {};
    realTime(CLOCK_MONOTONIC, &time);
    now_ns = (time.tv_sec + 1) * ns_per_s; // a whole one, so that each run is the same
    is_virtual = true;
}

int virtualclock::ms()
{
    return int(now_ns / (ns_per_s / 1000));
}

void virtualclock::pass(int ms)
{
    const int step_ms = 5;
    for (int passed_ms = 0; passed_ms < ms; passed_ms += step_ms) {
        now_ns += step_ms * ns_per_s / 1000;
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}
