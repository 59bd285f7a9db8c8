#pragma once
// SPDX-License-Identifier: MIT

#include <QPointF>
#include <QPointer>
#include <QWindow>

namespace vexo::hox::qt::uitest {

/// The touch device of the test, with one contact at most. What it reports goes the way of a real
/// device, through the window system interface, and is handled before the call returns.
///
/// Its clock is not that of the machine: it stands still but for pass(), so a double tap is one
/// also on a slow machine, and waiting takes no time.
class TouchInput
{
public:
    explicit TouchInput(QWindow *window);

    /// Lets \a ms pass.
    static void pass(int ms);
    /// Lets pass what the machine did since the last touch, and \a ms.
    static void pause(int ms);

    /// Contact at \a at, px of the window. A contact that was not lifted is lifted first.
    void press(const QPointF &at);
    void move(const QPointF &at);
    void lift();

private:
    void report(Qt::TouchPointState state);

    QPointer<QWindow> m_window;
    QPointF m_at;
};

} // namespace vexo::hox::qt::uitest
