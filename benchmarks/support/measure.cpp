// SPDX-License-Identifier: MIT
#include "benchmarks/support/measure.h"

#include <QFile>
#include <QHash>

#include <valgrind/callgrind.h>

#include <cstdio>
#include <ctime>

namespace bench {

namespace {

bool is_collecting = true; // callgrind collects from the start of the process

} // namespace

void prepareProcess()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("FONTCONFIG_FILE", HOXQ_FONTS_CONF);
    qSetGlobalQHashSeed(0);
}

bool isCounting()
{
    return RUNNING_ON_VALGRIND != 0;
}

void startCounting()
{
    if (!is_collecting)
        CALLGRIND_TOGGLE_COLLECT;
    is_collecting = true;
    CALLGRIND_ZERO_STATS;
}

void stopCounting(const std::string &subject, int times)
{
    CALLGRIND_TOGGLE_COLLECT;
    is_collecting = false;
    const std::string name = subject + ' ' + std::to_string(times);
    CALLGRIND_DUMP_STATS_AT(name.c_str());
}

qint64 cpuTime()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return qint64(time.tv_sec) * 1000000000 + time.tv_nsec;
}

qint64 memory(const char *kind)
{
    QFile status(QStringLiteral("/proc/self/status"));
    status.open(QIODevice::ReadOnly);
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith(kind))
            return line.simplified().split(' ').value(1).toLongLong();
    }
    qFatal("/proc/self/status names no %s", kind);
}

void print(const std::string &subject, const char *kind, double value)
{
    std::printf("%s %s %.17g\n", subject.c_str(), kind, value);
    std::fflush(stdout);
}

} // namespace bench
