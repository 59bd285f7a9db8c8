#pragma once
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QByteArray>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include <sys/mman.h>
#include <unistd.h>

/// Ends the process when a property does not hold.
inline void require(bool holds, const char *property)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", property);
    std::abort();
}

/// Ends the process when what it encloses takes too long: a tenth of a second, with a factor for
/// the sanitizers and a busy machine.
class TimeLimit
{
public:
    TimeLimit() = default;
    ~TimeLimit() { require(cpuSeconds() - m_start < 1, "no call takes long"); }
    TimeLimit(const TimeLimit &) = delete;
    TimeLimit &operator=(const TimeLimit &) = delete;

private:
    static double cpuSeconds()
    {
        timespec time = {};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
    }

    const double m_start = cpuSeconds();
};

/// An input as a file, in memory.
class InputAsFile
{
public:
    InputAsFile(const uint8_t *data, size_t size)
    {
        require(write(m_descriptor, data, size) == ssize_t(size), "the input is written");
    }
    ~InputAsFile() { close(m_descriptor); }
    InputAsFile(const InputAsFile &) = delete;
    InputAsFile &operator=(const InputAsFile &) = delete;

    QString path() const { return QStringLiteral("/proc/self/fd/%1").arg(m_descriptor); }

private:
    const int m_descriptor = memfd_create("input", MFD_CLOEXEC);
};

inline void drop(QtMsgType, const QMessageLogContext &, const QString &) { }

/// Without a screen, and silent about the flaws of an input.
inline QApplication &application()
{
    static int count = 1;
    static char name[] = "fuzz";
    static char *arguments[] = { name, nullptr };
    static const bool is_offscreen = qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QtMessageHandler former = qInstallMessageHandler(drop);
    Q_UNUSED(is_offscreen)
    Q_UNUSED(former)
    static QApplication application(count, arguments);
    return application;
}
