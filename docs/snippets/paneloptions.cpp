// SPDX-License-Identifier: MIT
//! [page]
#include <Panel>

using namespace vexo::hox::qt::panel;

// A panel whose screen tells wrong millimetres, and whose application has a sheet and fonts of its
// own.
void setUpPanel(QApplication &application)
{
    PanelOptions options;
    options.px = QSize(1280, 800);
    options.mm = QSizeF(160, 100);
    options.use_fonts = false;
    options.sheets += "/usr/share/app/look.qss"; // behind those of the library
    Panel::setUp(application, options);
}
//! [page]
