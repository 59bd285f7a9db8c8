// SPDX-License-Identifier: MIT
#include "benchmarks/support/screen.h"

#include <QFile>
#include <QLabel>

namespace bench {

Screen makeScreen()
{
    Screen screen;
    screen.window = std::make_unique<QLabel>(QStringLiteral("Ready"));
    return screen;
}

// The library's own sheets: what differs is only who reads them.
QString stockStyleSheet()
{
    QString text;
    for (const char *name : { ":/css/vexo-AAL.qs", ":/css/hoxq.qs" }) {
        QFile file(QString::fromLatin1(name));
        if (!file.open(QIODevice::ReadOnly))
            qFatal("%s cannot be read", name);
        text += QString::fromUtf8(file.readAll());
    }
    return text;
}

} // namespace bench
