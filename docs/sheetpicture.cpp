// SPDX-License-Identifier: MIT
#define main firstStep
#include "examples/first-panel/step7.cpp"
#undef main

#include <PanelSheet>

#include <cstdio>

namespace {

QWidget *createPanel()
{
    auto *pages = new PageStack;
    addPages(pages);
    pages->open("Settings");
    showLook(pages); // in the millimetres of this panel
    return pages;
}

} // namespace

// Renders the sheet of the page on testing into the file that is given.
int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    Panel::setUp(application);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QString()); // none
    const double px_per_mm = 2.5; // the rows can be read, and the picture stays small
    const QString file = application.arguments().value(1, "sheet.png");
    if (vexo::hox::qt::uitest::PanelSheet().sheet(createPanel, px_per_mm).save(file))
        return EXIT_SUCCESS;
    std::fprintf(stderr, "hoxqsheetpicture: cannot write %s\n", qPrintable(file));
    return EXIT_FAILURE;
}
