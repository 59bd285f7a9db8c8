// SPDX-License-Identifier: MIT
//! [page]
#include <VexoImageHeadline>

#include <QVBoxLayout>

using namespace vexo::hox::qt::ui;

void addHeadline(QVBoxLayout *screen, const QString &text)
{
    const QSizeF icon_in_mm(0, 6); // as wide as the image makes it
    screen->addWidget(new VexoImageHeadline(":/generalmenuSvg", icon_in_mm, text));
}
//! [page]
