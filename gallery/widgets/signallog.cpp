// SPDX-License-Identifier: MIT
#include "gallery/widgets/signallog.h"

#include "gallery/measures.h"
#include "gallery/widgets/fingerscroll.h"

#include <VexoColors>

#include <QTime>

using vexo::hox::qt::ui::VexoColors;

namespace {

const int most_lines = 500;
const int column_in_characters = 16; // time of day, sender

} // namespace

SignalLog::SignalLog(const QString &hint)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::NoTextInteraction);
    setMaximumBlockCount(most_lines);
    setPlaceholderText(hint);
    setFont(ptFont(7, QFont::Normal));
    setTabStopDistance(column_in_characters * fontMetrics().averageCharWidth());
    scrollByFinger(this);
    document()->setDocumentMargin(mmX(2));
    const QString sheet = "QPlainTextEdit { background: %1; color: %2; border: none; }";
    setStyleSheet(sheet.arg(VexoColors::C1.name(), VexoColors::C3.name()));
}

void SignalLog::note(const QString &sender, const QString &signal)
{
    const QString time = QTime::currentTime().toString("HH:mm:ss.zzz");
    appendPlainText(QStringList{ time, sender, signal }.join('\t'));
}
