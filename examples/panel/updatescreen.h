#pragma once
// SPDX-License-Identifier: MIT

#include "screen.h"

#include <RotationPixmap>

#include <QBasicTimer>

class QLabel;
class QProgressBar;

/// An update that takes some seconds, and installs nothing. There is no way back from it.
class UpdateScreen : public Screen
{
    Q_OBJECT

public:
    explicit UpdateScreen(PanelWindow *panel);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    void end();

    vexo::hox::qt::ui::RotationPixmap m_busy;
    QLabel *const m_sign;
    QProgressBar *const m_progress;
    QBasicTimer m_step;
};
