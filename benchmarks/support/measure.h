#pragma once
// SPDX-License-Identifier: MIT

#include <QtGlobal>

#include <string>

namespace bench {

/// Makes runs comparable: offscreen, with fonts and hash seed that no machine changes. Call it
/// first in main().
void prepareProcess();

/// Whether the process runs under callgrind: then instructions are counted, and times mean nothing.
bool isCounting();
/// Instructions are counted from here on; before the first call, from the start of the process.
void startCounting();
/// Stops and writes the count as that of \a times runs of \a subject. Outside callgrind both do
/// nothing.
void stopCounting(const std::string &subject, int times);

/// CPU time of the whole process since it started, ns.
qint64 cpuTime();
/// KiB of a line of /proc/self/status: "VmHWM", the most the process ever had in RAM, or "RssAnon",
/// what it has there now that comes from no file, which no other process can share.
qint64 memory(const char *kind);

/// Writes one result as a line "subject kind value". A subject is "screen what variant", a kind
/// "cpu" (ns), "memory" or "anonymous" (KiB), or "repaints".
void print(const std::string &subject, const char *kind, double value);

} // namespace bench
