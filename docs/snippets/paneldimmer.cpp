// SPDX-License-Identifier: MIT
//! [page]
#include <PanelDimmer>

#include <functional>

using vexo::hox::qt::panel::PanelDimmer;

// After a minute without a touch. With a light that can be switched, the screen itself need not
// become darker.
void saveLight(QWidget *screen, const std::function<void(int percent)> &setLight)
{
    auto *dimmer = new PanelDimmer(60, screen);
    dimmer->setDarkness(0);
    QObject::connect(dimmer, &PanelDimmer::dimmed, screen, [setLight] { setLight(5); });
    QObject::connect(dimmer, &PanelDimmer::woken, screen, [setLight] { setLight(100); });
}
//! [page]
