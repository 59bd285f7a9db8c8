// SPDX-License-Identifier: MIT
#include <Finger>
#include <ScalingInfo>

#include <QApplication>
#include <QPushButton>

#include <cstdio>

using namespace vexo::hox::qt;

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    ui::ScalingInfo::inst()->setPixels(1280, 800);
    ui::ScalingInfo::inst()->setSizeMM(160, 100);
    QPushButton button(QStringLiteral("OK"));
    QObject::connect(&button, &QPushButton::clicked, [] { std::puts("clicked"); });
    button.resize(200, 100);
    button.show();
    QCoreApplication::processEvents();
    uitest::Finger finger(&button);
    finger.tap(&button);
    std::printf("problem: %s\n", qPrintable(finger.lastProblem()));
}
