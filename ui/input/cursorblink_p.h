#pragma once
// SPDX-License-Identifier: MIT

#include <QTimer>

class QWidget;

namespace vexo::hox::qt::ui {

/// The timer of a cursor that blinks. It belongs to its field and pauses while the field is out of
/// sight: a cursor that nobody sees need not wake the processor.
class CursorBlink : public QTimer
{
public:
    explicit CursorBlink(QWidget *field);
    void setBlinking(bool on);

protected:
    bool eventFilter(QObject *field, QEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    bool m_is_on = false;
};

} // namespace vexo::hox::qt::ui
