// SPDX-License-Identifier: MIT
#include "gallery/display.h"
#include "gallery/mainwindow.h"
#include "gallery/options.h"
#include "gallery/shots.h"
#include "gallery/widgets/toneflash.h"

#include <Panel>
#include <ScalingInfo>

#include <QApplication>

#include <cstdio>
#include <stdexcept>

using namespace vexo::hox::qt::panel;
using namespace vexo::hox::qt::ui;

namespace {

void setUpPanel(QApplication &application, const std::optional<PanelSize> &size)
{
    PanelOptions options;
    if (size) {
        options.px = size->px;
        options.mm = size->mm;
    }
    Panel::setUp(application, options);
}

void openWindow(MainWindow &window, bool is_given_panel)
{
    if (is_given_panel)
        window.show();
    else if (ScalingInfo::isDesktop())
        window.showMaximized();
    else
        window.showFullScreen();
}

int run(int &argc, char **argv)
{
    const Options options = Options::fromArguments(argc, argv);
    const bool takes_shots = !options.shots_dir.isEmpty();
    if (takes_shots && !options.has_platform)
        qputenv("QT_QPA_PLATFORM", "offscreen");

    const auto application = openDisplay(argc, argv);
    setUpPanel(*application, options.panel);
    ToneFlash flash;
    VexoFeedbackDelegator::tone_delegator = &flash;

    MainWindow window;
    window.resize(ScalingInfo::inst()->m_pixels);
    if (takes_shots) {
        takeShots(window, options.pages, options.shots_dir);
        return EXIT_SUCCESS;
    }
    if (options.panel)
        window.setFixedSize(options.panel->px);
    window.showPage(options.pages.constFirst());
    openWindow(window, options.panel.has_value());
    return QApplication::exec();
}

int complain(const char *line, int exit_code)
{
    std::fprintf(stderr, "hoxqgallery: %s\n", line);
    return exit_code;
}

} // namespace

int main(int argc, char *argv[])
{
    try {
        return run(argc, argv);
    } catch (const std::invalid_argument &error) {
        return complain(error.what(), 2);
    } catch (const std::range_error &) {
        return complain("the screen does not tell its size in pixels and in mm", EXIT_FAILURE);
    } catch (const std::exception &error) {
        return complain(error.what(), EXIT_FAILURE);
    }
}
