#pragma once
// SPDX-License-Identifier: MIT

#include "panel/hoxqpanel_export.h"

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QWidget>

namespace vexo::hox::qt::panel {

/// Darkens a screen when nobody has touched the application for a while. The touch or key that
/// wakes it does nothing else, in no window of the application; neither does the bounce of the
/// finger behind it. For a panel with a light of its own, switch that in dimmed() and woken() and
/// set the darkness to 0. It waits with one timer, and paints once each way.
class HOXQPANEL_EXPORT PanelDimmer : public QWidget
{
    Q_OBJECT

    /// Time without a touch until it dims, s. Default that of the constructor. A change begins
    /// anew; 0 and less: only dim() does.
    Q_PROPERTY(int m_seconds READ seconds WRITE setSeconds)
    /// How dark, percent. Default 70; black at 100, untouched at 0, which are the limits.
    Q_PROPERTY(int m_darkness READ darkness WRITE setDarkness)

public:
    /// Covers \a screen, which owns it; without one it only emits.
    PanelDimmer(int seconds, QWidget *screen);
    ~PanelDimmer() override;

    int seconds() const { return m_seconds; }
    void setSeconds(int seconds);
    int darkness() const { return m_darkness; }
    void setDarkness(int percent);
    /// Whether it is dark.
    bool isDimmed() const { return m_is_dimmed; }

public Q_SLOTS:
    /// Dims at once.
    void dim();
    /// Wakes as a touch does, say for an incoming call, and waits anew.
    void wake();

Q_SIGNALS:
    /// It has become dark. The dimmer may be deleted in both signals.
    void dimmed();
    /// It is bright again.
    void woken();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool takes(const QEvent &event);
    void waitAnew();
    void wait(qint64 ms);

    int m_seconds;
    int m_darkness = 70;
    bool m_is_dimmed = false;
    bool m_is_taking = false; // what follows from the touch that woke
    QBasicTimer m_timer;
    QElapsedTimer m_since_touch;
};

} // namespace vexo::hox::qt::panel
