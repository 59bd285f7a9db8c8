// SPDX-License-Identifier: MIT
#include "gallery/display.h"

#include <QApplication>
#include <QDebug>

#include <cstdio>
#include <cstdlib>

namespace {

QStringList &complaints()
{
    static QStringList lines;
    return lines;
}

void keepComplaint(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type != QtFatalMsg) {
        complaints() += text.simplified();
        return;
    }
    const QString reason = complaints().value(0, text.simplified());
    std::fprintf(stderr,
        "hoxqgallery: no display to open a window on (%s); --shots DIR renders the pages to "
        "files\n",
        qPrintable(reason));
    std::_Exit(EXIT_FAILURE);
}

} // namespace

std::unique_ptr<QApplication> openDisplay(int &argc, char **argv)
{
    const QtMessageHandler usual = qInstallMessageHandler(keepComplaint);
    auto application = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(usual);
    for (const QString &complaint : qAsConst(complaints()))
        qWarning().noquote() << complaint;
    return application;
}
