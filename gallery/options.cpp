// SPDX-License-Identifier: MIT
#include "gallery/options.h"

#include "gallery/pagelist.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <numeric>
#include <stdexcept>

namespace {

const int largest_side_px = 16384;
const double smallest_density = 1; // px/mm; below it no text can be read,
const double largest_density = 40; // above it a page takes gigabytes

[[noreturn]] void refuse(const QString &line)
{
    throw std::invalid_argument(line.toStdString());
}

void declareOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription("Shows the widgets of HoxqUi at the proportions of a panel.");
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.addOption({ { "h", "help" }, "Show this help." });
    parser.addOption({ "panel",
        "Show what a panel of these pixels and millimetres shows, for example "
        "1280x800@160x100. Default: the real screen.",
        "WxH@WxH" });
    parser.addOption({ "shots",
        "Render the pages to PNG files in DIR instead of opening a window; needs no display.",
        "DIR" });
    parser.addOption({ "page", "Only this page: " + pageNames().join(", ") + ".", "NAME" });
    parser.addOption(
        { "platform", "Platform of the toolkit, as for each of its programs.", "QPA" });
}

void checkDensity(double px, double mm)
{
    const double px_per_mm = px / mm;
    if (!(px_per_mm >= smallest_density && px_per_mm <= largest_density))
        refuse(QString("--panel: %1 px on %2 mm is %3 px/mm; %4 to %5 can be shown")
                   .arg(px)
                   .arg(mm)
                   .arg(px_per_mm)
                   .arg(smallest_density)
                   .arg(largest_density));
}

void checkPanel(const PanelSize &panel)
{
    if (panel.px.isEmpty() || panel.mm.isEmpty())
        refuse("--panel: all four sizes must be above 0");
    if (panel.px.width() > largest_side_px || panel.px.height() > largest_side_px)
        refuse(QString("--panel: at most %1 pixels a side").arg(largest_side_px));
    checkDensity(panel.px.width(), panel.mm.width());
    checkDensity(panel.px.height(), panel.mm.height());
}

PanelSize parsePanel(const QString &text)
{
    static const QRegularExpression form(
        R"(\A(-?\d{1,9})x(-?\d{1,9})@(-?\d{1,9}(?:\.\d{1,9})?)x(-?\d{1,9}(?:\.\d{1,9})?)\z)");
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        refuse("--panel " + text + ": expected pixels and millimetres as in 1280x800@160x100");
    const PanelSize panel{ QSize(match.captured(1).toInt(), match.captured(2).toInt()),
        QSizeF(match.captured(3).toDouble(), match.captured(4).toDouble()) };
    checkPanel(panel);
    return panel;
}

QString createFolder(const QString &name)
{
    if (name.isEmpty())
        refuse("--shots: the name of the folder is empty");
    const QDir dir(name);
    if (!dir.mkpath(".") || !QFileInfo(dir.path()).isWritable())
        refuse("--shots " + name + ": the folder cannot be created or written to");
    return dir.absolutePath();
}

QVector<int> allPages()
{
    QVector<int> pages(pageList().size());
    std::iota(pages.begin(), pages.end(), 0);
    return pages;
}

int pageNamed(const QString &name)
{
    const int page = pageNames().indexOf(name);
    if (page < 0)
        refuse("--page " + name + ": there is " + pageNames().join(", "));
    return page;
}

void checkSyntax(const QCommandLineParser &parser, bool is_parsed)
{
    if (!is_parsed)
        refuse(parser.errorText() + " --help lists the options.");
    if (!parser.positionalArguments().isEmpty())
        refuse("unexpected argument " + parser.positionalArguments().constFirst());
}

[[noreturn]] void showHelp(QCommandLineParser &parser, int &argc, char **argv)
{
    const QCoreApplication application(argc, argv); // the help text asks it for the program's name
    parser.showHelp(EXIT_SUCCESS);
}

} // namespace

Options Options::fromArguments(int &argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments += QString::fromLocal8Bit(argv[i]);

    QCommandLineParser parser;
    declareOptions(parser);
    checkSyntax(parser, parser.parse(arguments));
    if (parser.isSet("help"))
        showHelp(parser, argc, argv);

    Options options;
    if (parser.isSet("panel"))
        options.panel = parsePanel(parser.value("panel"));
    options.pages = allPages();
    if (parser.isSet("page"))
        options.pages = { pageNamed(parser.value("page")) };
    if (parser.isSet("shots"))
        options.shots_dir = createFolder(parser.value("shots"));
    options.has_platform
        = parser.isSet("platform") || !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
    return options;
}
