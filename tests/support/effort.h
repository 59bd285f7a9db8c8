#pragma once
// SPDX-License-Identifier: MIT

#include <QFile>
#include <QString>

#include <ctime>

/// What the calling thread has done since this object was made: processor time, which a busy
/// machine does not stretch as it does the clock's, and memory of the process.
class Effort
{
public:
// The sanitizer keeps freed memory for a while.
#ifdef __SANITIZE_ADDRESS__
    static constexpr bool IS_SANITIZED = true;
#else
    static constexpr bool IS_SANITIZED = false;
#endif

    Effort()
    {
        QFile reset(QStringLiteral("/proc/self/clear_refs"));
        if (reset.open(QIODevice::WriteOnly))
            reset.write("5"); // the peak is the present size
        m_base_mb = statusKib("VmRSS:") / 1024;
        m_start_ms = cpuMs();
    }

    double ms() const
    {
        return cpuMs() - m_start_ms;
    }
    int peakMb() const
    {
        return statusKib("VmHWM:") / 1024 - m_base_mb;
    }

    /// Not more than 100 ms, with a factor for a slow or busy machine, and 64 MB.
    bool isSmall(int calls = 1) const
    {
        const double factor = IS_SANITIZED ? 30 : 5;
        return ms() < 100 * factor * calls && (IS_SANITIZED || peakMb() <= 64 + 8);
    }

    QString text() const
    {
        return QStringLiteral("%1 ms, %2 MB").arg(ms()).arg(peakMb());
    }

    /// A line of the process's status.
    static int statusKib(const QByteArray &field)
    {
        QFile status(QStringLiteral("/proc/self/status"));
        if (!status.open(QIODevice::ReadOnly))
            return 0;
        const QByteArray text = status.readAll();
        return text.mid(text.indexOf(field) + field.size()).simplified().split(' ')[0].toInt();
    }

private:
    static double cpuMs()
    {
        timespec time = {};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
    }

    int m_base_mb = 0;
    double m_start_ms = 0;
};
