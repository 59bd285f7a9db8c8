// SPDX-License-Identifier: MIT
//! [page]
#include <ActiveButton>
#include <ScalingInfo>

using namespace vexo::hox::qt::ui;

// An alarm that flashes with the application's timer until it is acknowledged by a click. Buttons
// on the same timer flash in step.
ActiveButton *createAlarm(const QTimer *beat)
{
    auto *button = new ActiveButton;
    button->setIconSize(ScalingInfo::inst()->mm2px(QSizeF(8, 8)).toSize());
    button->addIcon(ActiveButton::DEFAULT_STATE_NAME, ":/VexoIconGeneralInfoSvg");
    button->addIcon(ActiveButton::BLINKING_STATE_NAME, ":/widgetimages/VexoIconEmpty.svg");
    button->setTimer(beat);
    button->blink(ActiveButton::BLINKING_STATE_NAME, ActiveButton::DEFAULT_STATE_NAME);
    QObject::connect(button, &ActiveButton::clicked, button,
        [button] { button->setState(ActiveButton::DEFAULT_STATE_NAME); });
    return button;
}
//! [page]
