// SPDX-License-Identifier: MIT
#include "gallery/pages/dialogpage.h"

#include "gallery/measures.h"
#include "gallery/widgets/screenframe.h"
#include "gallery/widgets/tilelayout.h"

#include <PanelDialog>
#include <VexoColors>
#include <VexoPushButton>

#include <QLabel>
#include <QVBoxLayout>

using namespace vexo::hox::qt::panel;
using namespace vexo::hox::qt::ui;

namespace {

PanelDialog *createQuestion(QWidget *screen)
{
    auto *dialog = new PanelDialog("Restart the device?", screen);
    dialog->setExplanation("It cannot be reached for about a minute.");
    dialog->addButton("Cancel");
    dialog->addButton("Restart");
    return dialog;
}

PanelDialog *createChoice(QWidget *screen)
{
    auto *dialog = new PanelDialog("Who is there?", screen);
    for (const char *text : { "Open", "Answer", "Not now" })
        dialog->addButton(text);
    dialog->setBackgroundColor(VexoColors::C3);
    dialog->setTextColor(VexoColors::C0);
    return dialog;
}

} // namespace

DialogPage::DialogPage()
    : Page("Dialog",
        "A question over a screen. It is a child of that screen and no window; what lies below is "
        "darkened and takes no touches.")
{
    QLabel *answer = createText("The last answer appears here.", 7, QFont::Normal);
    const auto tell
        = [answer](int button) { answer->setText(QString("answered(%1)").arg(button)); };
    auto *tiles = new TileLayout(mmX(75), mmSize(4, 4));
    for (const auto create : { createQuestion, createChoice }) {
        auto *screen = new ScreenFrame(62);
        PanelDialog *dialog = create(screen);
        dialog->open();
        // It comes up again, for the next one who looks at the page.
        connect(dialog, &PanelDialog::answered, answer, tell);
        connect(dialog, &PanelDialog::answered, dialog, &PanelDialog::open, Qt::QueuedConnection);
        tiles->addLayout(createCaptioned(screen,
            create == createQuestion ? "Two buttons side by side"
                                     : "More of them, in other colours"));
    }
    auto *button = new VexoPushButton;
    button->setText("Over the window");
    button->setFixedWidth(mmX(60));
    connect(button, &VexoPushButton::clicked, this, [this, answer, tell] {
        PanelDialog *dialog = createQuestion(window());
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->setClosesBeside(true);
        connect(dialog, &PanelDialog::answered, answer, tell);
        dialog->open();
    });
    addSection("Questions");
    addBlock(answer);
    addBlock(tiles);
    addBlock(button);
}
