// SPDX-License-Identifier: MIT
//! [page]
#include <CachedVectorIcon>

#include <QToolButton>

using namespace vexo::hox::qt::ui;

// 10 mm high, as wide as the image makes it.
QToolButton *createEnterButton(QWidget *parent)
{
    CachedVectorIcon icon(":/VexoIconGeneralEnter", QSizeF(0, 10));
    auto *button = new QToolButton(parent);
    button->setIcon(icon);
    button->setIconSize(QSize(int(icon.pxWidth()), int(icon.pxHeight()))); // as it was rendered
    return button;
}
//! [page]
