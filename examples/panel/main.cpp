// SPDX-License-Identifier: MIT
#include "options.h"
#include "panelwindow.h"
#include "shots.h"

#include <ScalingInfo>

#include <QApplication>

#include <cstdio>
#include <stdexcept>

using namespace vexo::hox::qt::ui;

namespace {

int run(int &argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments += QString::fromLocal8Bit(argv[i]);
    if (arguments.contains("--help")) {
        std::printf("%s", Options::help());
        return EXIT_SUCCESS;
    }
    const Options options = Options::read(arguments);
    if (!options.shots.isEmpty() && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    setUpPanel(&application, options);
    PanelWindow window;
    window.resize(ScalingInfo::inst()->m_pixels);
    if (!options.shots.isEmpty()) {
        takeShots(&window, options.shots);
        return EXIT_SUCCESS;
    }
    if (options.px)
        window.show();
    else
        window.showFullScreen();
    return QApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    try {
        return run(argc, argv);
    } catch (const std::invalid_argument &error) {
        std::fprintf(stderr, "panel: %s\n", error.what());
        return 2;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "panel: %s\n", error.what());
        return EXIT_FAILURE;
    }
}
