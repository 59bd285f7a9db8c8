#pragma once
// SPDX-License-Identifier: MIT

#include <QChildEvent>
#include <QWidget>

namespace vexo::hox::qt::panel {

/// The parent of what lies over a screen, for as long as it takes to become its child:
/// QWidget(Over(screen)). A screen that lays out its children itself is not told of it, as a
/// splitter would make it one of its panes.
class Over : public QObject
{
public:
    /// \a screen may be null.
    explicit Over(QWidget *screen)
        : m_screen(screen)
    {
        if (screen)
            screen->installEventFilter(this);
    }

    operator QWidget *() const { return m_screen; }

    bool eventFilter(QObject *, QEvent *event) override
    {
        return event->type() == QEvent::ChildAdded
            && static_cast<QChildEvent *>(event)->child()->isWidgetType();
    }

private:
    QWidget *const m_screen;
};

} // namespace vexo::hox::qt::panel
