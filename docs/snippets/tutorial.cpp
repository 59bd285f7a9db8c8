// SPDX-License-Identifier: MIT
#include <Panel>

#include <QStackedWidget>

using namespace vexo::hox::qt::panel;

void showPanel(QApplication &application, void (*add_pages)(QStackedWidget *))
{
    PanelOptions options;
    options.px = QSize(1280, 800);
    options.mm = QSizeF(160, 100);
    Panel::setUp(application, options);
    auto *pages = new QStackedWidget;
    add_pages(pages);
    pages->setFixedSize(*options.px);
    pages->show();
}
