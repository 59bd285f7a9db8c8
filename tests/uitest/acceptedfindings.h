#pragma once
// SPDX-License-Identifier: MIT

#include <PanelAudit>

#include <QFile>
#include <QRegularExpression>

/// Findings of an audit that stay, from a file with lines "screen | rule | what | reason", the
/// first and the third of them patterns.
class AcceptedFindings
{
public:
    using Findings = QVector<vexo::hox::qt::uitest::Finding>;

    /// False if there is none.
    bool read(const QString &path)
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return false;
        const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
        for (const QString &line : lines) {
            const QStringList parts = line.split(" | ");
            if (parts.size() == 4 && !line.startsWith(QLatin1Char('#')))
                m_entries.append(
                    { QRegularExpression(QRegularExpression::anchoredPattern(parts.at(0))),
                        parts.at(1), QRegularExpression(parts.at(2).trimmed()), line });
        }
        return !m_entries.isEmpty();
    }

    /// Those of \a screen that no line accepts.
    Findings others(const Findings &findings, const QString &screen)
    {
        Findings others;
        for (const auto &finding : findings) {
            bool is_accepted = false;
            for (Entry &entry : m_entries) {
                const bool is_this = entry.screen.match(screen).hasMatch()
                    && entry.rule == finding.rule
                    && entry.what.match(finding.where + ": " + finding.text).hasMatch();
                entry.is_needed = entry.is_needed || is_this;
                is_accepted = is_accepted || is_this;
            }
            if (!is_accepted)
                others.append(finding);
        }
        return others;
    }

    /// The lines that have accepted nothing.
    QStringList needless() const
    {
        QStringList lines;
        for (const Entry &entry : m_entries) {
            if (!entry.is_needed)
                lines += entry.line;
        }
        return lines;
    }

private:
    struct Entry
    {
        QRegularExpression screen;
        QString rule;
        QRegularExpression what;
        QString line;
        bool is_needed = false;
    };

    QVector<Entry> m_entries;
};
