// SPDX-License-Identifier: MIT
#include <Panel>
#include <ScalingInfo>
#include <VexoPushButton>

#include <QApplication>
#include <QVBoxLayout>

using namespace vexo::hox::qt::panel;
using namespace vexo::hox::qt::ui;

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    Panel::setUp(application); // scale, style, colours, fonts, stylesheets: before the first widget

    QWidget screen;
    screen.setBackgroundRole(QPalette::Button); // the light grey on which buttons stand
    screen.setAutoFillBackground(true);
    auto *button = new VexoPushButton; // 12 mm high on each panel
    button->setFixedWidth(int(ScalingInfo::inst()->mm2px_X(50))); // 50 mm
    button->setText("Good morning");
    QObject::connect(button, &VexoPushButton::clicked, &application, &QApplication::quit);
    auto *column = new QVBoxLayout(&screen);
    column->addWidget(button, 0, Qt::AlignCenter);
    screen.showFullScreen();
    return application.exec();
}
