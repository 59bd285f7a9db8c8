// SPDX-License-Identifier: MIT
//! [page]
#include <PanelNotice>

using vexo::hox::qt::panel::PanelNotice;

// One for all messages of a screen; the later takes the place of the former.
void tellOfSaving(QWidget *screen)
{
    auto *notice = new PanelNotice(Qt::BottomEdge, screen);
    notice->setMs(6000);
    notice->tell("Saved");
}
//! [page]
