// SPDX-License-Identifier: MIT
//! [page]
#include <Panel>

#include <QApplication>
#include <QStackedWidget>

using namespace vexo::hox::qt::panel;

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    Panel::setUp(application); // before the first widget
    QStackedWidget screens;
    screens.showFullScreen();
    return application.exec();
}
//! [page]
