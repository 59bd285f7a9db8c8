// SPDX-License-Identifier: MIT
//! [page]
#include <VexoLogging>

#include <QString>

using vexo::hox::qt::system::VexoLogging;

// Writes to the channel "PUMP"; QT_LOGGING_RULES="hoxq.PUMP.debug=true" shows the Debug line too.
void startPump(int rpm)
{
    const VexoLogging log("PUMP");
    log.Info("started");
    if (log.isDebugging()) // else the text is not even composed
        log.Debug(QString("%1 rpm").arg(rpm).toStdString());
}
//! [page]
