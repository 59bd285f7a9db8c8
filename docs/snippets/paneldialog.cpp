// SPDX-License-Identifier: MIT
//! [page]
#include <PanelDialog>
#include <VexoPushButton>

#include <functional>

using vexo::hox::qt::panel::PanelDialog;

// Asks, and restarts at a yes. The dialog deletes itself.
void askToRestart(QWidget *screen, const std::function<void()> &restart)
{
    auto *dialog = new PanelDialog("Restart the device?", screen);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setExplanation("It cannot be reached for about a minute.");
    dialog->addButton("Cancel");
    dialog->addButton("Restart");
    QObject::connect(dialog, &PanelDialog::answered, dialog, [restart](int button) {
        if (button == 1)
            restart();
    });
    dialog->open();
}
//! [page]
