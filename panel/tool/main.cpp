// SPDX-License-Identifier: MIT
#include <ScreenDoctor>

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QScreen>

#include <cstdio>
#include <cstdlib>

using namespace vexo::hox::qt::panel;

namespace {

const int wrong_command_line = 2;

void print(const QString &text)
{
    std::printf("%s", qPrintable(text));
}

int complain(const QString &text)
{
    std::fprintf(stderr, "hoxqui-panel: %s\n", qPrintable(text));
    return wrong_command_line;
}

// Without a display the toolkit ends the process; that is a finding like others.
void handle(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type != QtFatalMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(text.simplified()));
        return;
    }
    const QString platform = QString::fromLocal8Bit(qgetenv("QT_QPA_PLATFORM"));
    print(ScreenDoctor::report(
        ScreenDoctor::findings({ platform.section(QLatin1Char(':'), 0, 0), {}, {} })));
    std::fflush(stdout);
    std::_Exit(EXIT_FAILURE);
}

int examine(const QString &name, const ScreenFacts &facts)
{
    const auto findings = ScreenDoctor::findings(facts);
    print(QStringLiteral("%1: %2\n").arg(name, facts.text()));
    print(ScreenDoctor::report(findings));
    return findings.isEmpty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

int examineScreens()
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    if (screens.isEmpty())
        return examine(QStringLiteral("no screen"), ScreenFacts::of(nullptr));
    int exit_code = EXIT_SUCCESS;
    for (const QScreen *screen : screens) {
        const QString name = QStringLiteral("screen %1 on %2")
                                 .arg(screen->name(), QGuiApplication::platformName())
                                 .simplified();
        exit_code |= examine(name, ScreenFacts::of(screen));
    }
    return exit_code;
}

int examineFigures(const QString &text)
{
    static const QRegularExpression form(QStringLiteral(
        R"(\A(\d{1,6})x(\d{1,6})@(\d{1,6}(?:\.\d{1,3})?)x(\d{1,6}(?:\.\d{1,3})?)\z)"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return complain(QStringLiteral("--panel %1: expected pixels and millimetres as in "
                                       "1280x800@160x100")
                            .arg(text));
    return examine(QStringLiteral("panel"),
        { QGuiApplication::platformName(), { match.captured(1).toInt(), match.captured(2).toInt() },
            { match.captured(3).toDouble(), match.captured(4).toDouble() } });
}

} // namespace

// 0: nothing looks wrong, 1: something does, 2: the command line is wrong.
int main(int argc, char *argv[])
{
    qInstallMessageHandler(handle);
    const QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Tells the size of each screen and what looks wrong about it; exit code 1 "
                       "if something does."));
    const QCommandLineOption help = parser.addHelpOption();
    parser.addOption({ QStringLiteral("panel"),
        QStringLiteral("Examine these pixels and millimetres instead, such as 1280x800@160x100."),
        QStringLiteral("WxH@WxH") });
    if (!parser.parse(QCoreApplication::arguments()))
        return complain(parser.errorText());
    if (parser.isSet(help))
        parser.showHelp(EXIT_SUCCESS);
    if (!parser.positionalArguments().isEmpty())
        return complain(
            QStringLiteral("unexpected argument ") + parser.positionalArguments().constFirst());
    const QString panel = parser.value(QStringLiteral("panel"));
    return parser.isSet(QStringLiteral("panel")) ? examineFigures(panel) : examineScreens();
}
