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
    button->setIconSize(icon.toPixmap().size()); // px: drawn as it was rendered
    return button;
}
//! [page]
