// SPDX-License-Identifier: MIT
#include <Panel>

using namespace vexo::hox::qt::panel;

void setUpPanel(QApplication &application)
{
    PanelOptions options;
    options.px = QSize(1280, 800);
    options.mm = QSizeF(160, 100);
    Panel::setUp(application, options);
}
