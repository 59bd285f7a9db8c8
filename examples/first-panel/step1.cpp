// SPDX-License-Identifier: MIT
#include <Panel>
#include <ScalingInfo>
#include <VexoColors>
#include <VexoPushButton>

#include <QApplication>
#include <QVBoxLayout>

using namespace vexo::hox::qt::panel;
using namespace vexo::hox::qt::ui;

namespace {

// Whole pixels of this panel.
int mmX(double mm)
{
    return int(ScalingInfo::inst()->mm2px_X(float(mm)));
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    Panel::setUp(application); // scale, style, colours, fonts, stylesheets: before the first widget
    QWidget window;
    window.setBackgroundRole(QPalette::Button); // the light grey on which buttons stand
    window.setAutoFillBackground(true);
    auto *button = new VexoPushButton; // 12 mm high on each panel
    button->setFixedWidth(mmX(50));
    button->setText("Good morning");
    button->setBackgroundClickedColor(VexoColors::C4); // dark under the finger
    QObject::connect(button, &VexoPushButton::clicked, &application, &QApplication::quit);
    auto *column = new QVBoxLayout(&window);
    column->addWidget(button, 0, Qt::AlignCenter);
    window.showFullScreen();
    return application.exec();
}
