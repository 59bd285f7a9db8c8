// SPDX-License-Identifier: MIT
#define main runFirstPanel
#include "examples/first-panel/main.cpp"
#undef main

#include <MmStylesheet>
#include <PanelSheet>

#include <cstdio>

namespace {

QWidget *createSettings()
{
    MmStylesheet(PanelOptions().sheets).set();
    auto *pages = new QStackedWidget;
    addSettings(pages);
    pages->layout()->setSizeConstraint(QLayout::SetNoConstraint); // as large as the panel
    return pages;
}

} // namespace

// Renders the sheet of the page on testing into the file that is given.
int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    Panel::setUp(application);
    const double px_per_mm = 2.5; // the rows can be read, and the picture stays small
    const QString file = application.arguments().value(1, "sheet.png");
    if (vexo::hox::qt::uitest::PanelSheet().sheet(createSettings, px_per_mm).save(file))
        return EXIT_SUCCESS;
    std::fprintf(stderr, "hoxqsheetpicture: cannot write %s\n", qPrintable(file));
    return EXIT_FAILURE;
}
