#pragma once
// SPDX-License-Identifier: MIT

#include "system/vexologging.h"
#include "ui/hoxqui_export.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QToolButton>

#include <memory>

namespace vexo::hox::qt::ui {

class VisibleBuddies;

/// A tool button that measures how long it is held. It reports a long press while the finger is
/// still down (after 300 ms), tells on release whether the press was short or long, can fire a
/// repeating pulse while held, and shows and hides other widgets together with itself.
///
/// A press shorter than 300 ms gives pressedDelayed(t), keyPressHandling(t, true, false) at the
/// release; a longer one gives keyPressHandling(t, false, true) after 300 ms, then
/// pressedDelayed(t), keyPressHandling(t, false, false) at the release. A press that ends
/// otherwise, as by a dialog or a scroller, gives none of them. The button may be deleted in each
/// of its signals but toggled(), after which the toolkit goes on with it.
///
/// Each press rings the feedback delegator that was installed when the button was constructed.
class HOXQUI_EXPORT MeasuredPushButton : public QToolButton,
                                         protected vexo::hox::qt::system::VexoLogging
{
    Q_OBJECT

public:
    explicit MeasuredPushButton(QWidget *parent = nullptr);
    ~MeasuredPushButton() override;

    /// Calls \a slot (made with SLOT()) of \a receiver every \a interval_ms ms while the button is
    /// held, first one interval after the press, once enablePulse() allows it. The interval holds
    /// for all connections, and each call adds one. \a slot must be declared as a slot or signal.
    /// 0 ms never pulses; a null receiver or slot only sets the interval.
    void pulse(unsigned int interval_ms, const QObject *receiver, const char *slot);
    /// Default false. Switching off stops a pulse at once, switching on acts at the next press.
    void enablePulse(bool enable);

    /// Shows and hides \a buddy with the button from the next setVisible() on, in the order of the
    /// calls; a buddy added twice is shown twice. Not owned; null is ignored.
    void addVisibleBuddy(QWidget *buddy);
    /// Forgets the buddies; they keep their visibility.
    void clearVisibleBuddies();

public Q_SLOTS:
    void setVisible(bool visible) override;

Q_SIGNALS:
    /// Released after \a delayed ms.
    void pressedDelayed(uint delayed);
    /// After \a elapsed ms: \a short_pressed tells a release before 300 ms, \a pressed a long press
    /// that is still held; neither, the release of a long press.
    void keyPressHandling(uint elapsed, bool short_pressed, bool pressed);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    /// Hook for subclasses: the button was released after \a elapsed_ms ms, its released() and
    /// clicked() are out. Emits pressedDelayed().
    virtual void mouseReleaseEvent(unsigned int elapsed_ms);

private Q_SLOTS:
    void longPressed();

private:
    void startMeasuring();
    void stopMeasuring();

    QElapsedTimer m_press_time;
    QTimer m_long_press_timer;
    QTimer m_pulse_timer;
    bool m_pulse_enabled = false;
    const unsigned int m_long_press_ms = 300;
    const std::unique_ptr<VisibleBuddies> m_visible_buddies;
};

} // namespace vexo::hox::qt::ui
