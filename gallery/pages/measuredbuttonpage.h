#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

class QLabel;
class SignalLog;

namespace vexo::hox::qt::ui {
class MeasuredPushButton;
}

/// MeasuredPushButton: its signals as they come, the pulse, the visible buddies, easy access and
/// the feedback tone.
class MeasuredButtonPage : public Page
{
    Q_OBJECT

public:
    MeasuredButtonPage();

private Q_SLOTS:
    void countPulse();

private:
    using Button = vexo::hox::qt::ui::MeasuredPushButton;

    void addPress();
    void addBuddies();
    void addEasyAccess();
    QLayout *createPulseControls(Button *button);
    void logSignals(Button *button, const QString &name);

    SignalLog *m_log;
    QLabel *m_pulses;
    int m_pulse_count = 0;
};
