// SPDX-License-Identifier: MIT
#include "package/process.h"

#include <QProcess>
#include <QProcessEnvironment>

Finished run(const QString &program, const QStringList &arguments, const QString &folder,
    const QStringList &environment)
{
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (const QString &variable : environment)
        variables.insert(
            variable.section(QLatin1Char('='), 0, 0), variable.section(QLatin1Char('='), 1));
    QProcess process;
    process.setProcessEnvironment(variables);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    if (!process.waitForFinished(240000) || process.exitStatus() != QProcess::NormalExit) {
        const QString reason = program + ": " + process.errorString();
        return { -1, QString::fromLocal8Bit(process.readAll()) + reason };
    }
    return { process.exitCode(), QString::fromLocal8Bit(process.readAll()) };
}
