// SPDX-License-Identifier: MIT
#include "options.h"

#include <Panel>

#include <QApplication>
#include <QRegularExpression>

#include <stdexcept>

using namespace vexo::hox::qt::panel;

namespace {

[[noreturn]] void refuse(const QString &why)
{
    throw std::invalid_argument(why.toStdString());
}

bool isPossible(double px, double mm)
{
    return px > 0 && px <= 16384 && mm > 0 && px / mm >= 1 && px / mm <= 40;
}

void readPanel(const QString &text, Options *options)
{
    static const QRegularExpression form(
        R"(\A(\d{1,5})x(\d{1,5})@(\d{1,5}(?:\.\d+)?)x(\d{1,5}(?:\.\d+)?)\z)");
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        refuse("--panel " + text + ": expected pixels and millimetres as in 1280x800@160x100");
    options->px = QSize(match.captured(1).toInt(), match.captured(2).toInt());
    options->mm = QSizeF(match.captured(3).toDouble(), match.captured(4).toDouble());
    if (!isPossible(options->px->width(), options->mm->width())
        || !isPossible(options->px->height(), options->mm->height()))
        refuse("--panel " + text + ": 1 to 40 px/mm and up to 16384 px a side can be shown");
}

} // namespace

Options Options::read(const QStringList &arguments)
{
    Options options;
    for (int i = 0; i < arguments.size(); i += 2) {
        const QString &name = arguments.at(i);
        if (name != "--panel" && name != "--shots")
            refuse(name + ": no such option, see --help");
        if (i + 1 == arguments.size() || arguments.at(i + 1).isEmpty())
            refuse(name + " needs a value");
        if (name == "--panel")
            readPanel(arguments.at(i + 1), &options);
        else
            options.shots = arguments.at(i + 1);
    }
    return options;
}

const char *Options::help()
{
    return "panel [--panel WxH@WxH] [--shots DIR]\n"
           "  --panel WxH@WxH  pixels and millimetres of a panel, such as 1280x800@160x100\n"
           "  --shots DIR      a picture of each screen to DIR; needs no display\n";
}

void setUpPanel(QApplication *application, const Options &options)
{
    PanelOptions panel;
    panel.px = options.px;
    panel.mm = options.mm;
    panel.use_palette = false; // the window has its own, for day and night
    panel.sheets.clear();
    Panel::setUp(*application, panel);
}
