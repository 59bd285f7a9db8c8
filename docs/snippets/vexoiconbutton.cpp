//! [page]
#include <VexoIconButton>

using namespace vexo::hox::qt::ui;

// 12 mm high, as wide as the image makes it; light in an outline while it is pressed.
VexoIconButton *createMenuButton(QWidget *parent)
{
    auto *button = new VexoIconButton(parent);
    button->setAccessibleName("Menu");
    button->setMmIconSize(QSizeF(0, 12));
    button->addIcon(ActiveButton::DEFAULT_STATE_NAME, ":/generalmenuSvg");
    button->createMissingInverseIcons();
    return button;
}
//! [page]
