// SPDX-License-Identifier: MIT
//! [page]
#include <UpdatePage>

#include <QStackedWidget>

using namespace vexo::hox::qt::ui;

// The update page as one of the application's screens.
void addUpdatePage(QStackedWidget *screens)
{
    auto *page = new UpdatePage;
    page->setObjectName("updateScreen");
    page->setAttribute(Qt::WA_StyledBackground);
    page->setStyleSheet("#updateScreen { background: black; } QLabel { color: white; }");
    screens->addWidget(page);
}
//! [page]
