// SPDX-License-Identifier: MIT
#include "panel/plugin/keyboardchoice.h"

#include <OnScreenKeyboard>

#include <QLoggingCategory>

#include <stdexcept>

namespace {

Q_LOGGING_CATEGORY(channel, "hoxq.keyboard")

} // namespace

void chooseLanguages(vexo::hox::qt::panel::OnScreenKeyboard *keyboard)
{
    const QString list = qEnvironmentVariable("HOXQUI_KEYBOARDS");
    QStringList codes;
    const QStringList entries = list.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &entry : entries) {
        const QString name = entry.trimmed();
        try {
            const bool is_file = name.contains(QLatin1Char('/'));
            codes += is_file ? keyboard->addLayoutFile(name) : name;
        } catch (const std::runtime_error &error) {
            qCWarning(channel, "%s", error.what());
        }
    }
    if (!codes.isEmpty())
        keyboard->setLanguages(codes);
}
