// SPDX-License-Identifier: MIT
//! [page]
#include <Soak>

#include <QDebug>
#include <QWidget>

#include <memory>

using namespace vexo::hox::qt::uitest;

// Opens and closes the screen a thousand times.
bool leavesNothingBehind(const std::function<QWidget *()> &create)
{
    const SoakResult result = soak([=] {
        const std::unique_ptr<QWidget> screen(create());
        screen->show();
    });
    qInfo().noquote() << result.text();
    return !result.isLeaking();
}
//! [page]
