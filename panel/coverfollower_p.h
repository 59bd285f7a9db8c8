#pragma once
// SPDX-License-Identifier: MIT

#include <QObject>

class QWidget;

namespace vexo::hox::qt::panel {

/// Keeps a widget as large as its parent for as long as both live.
class CoverFollower : public QObject
{
public:
    /// Owned by \a cover. Without a parent of that it does nothing.
    explicit CoverFollower(QWidget *cover);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *const m_cover;
};

/// Ends the touches that go on below \a screen, so that lifting the finger clicks nothing there:
/// for what comes up over it meanwhile.
void endPresses(QWidget *screen);

} // namespace vexo::hox::qt::panel
