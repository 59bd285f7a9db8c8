#pragma once
// SPDX-License-Identifier: MIT

#include <QEvent>
#include <QWidget>

#include <functional>

class QGridLayout;
class QTimer;

namespace bench {

/// Makes the widget that is measured below \a parent, the window of a panel.
using Make = std::function<QWidget *(QWidget *parent)>;

/// A visible window with some widgets, and a timer that paces them but never runs.
class Panel
{
public:
    /// \a style_sheet holds for the window. An invalid \a px leaves the widgets their own size.
    Panel(const char *style_sheet, const Make &make, int widgets, const QSize &px);

    QTimer *timer() { return m_timer; }
    QWidget *window() { return &m_window; }
    /// The widget made last.
    QWidget *widget() { return m_widget; }

private:
    QWidget m_window;
    QGridLayout *m_layout;
    QTimer *m_timer; // child of the window, where the widgets find it
    QWidget *m_widget = nullptr;
};

/// A press or release in the middle of \a widget, and everything that follows from it.
void sendMouse(QWidget *widget, QEvent::Type type);

/// Which part of the measured widget is touched; null for none.
using Touched = QWidget *(*)(QWidget *widget);
inline QWidget *wholeWidget(QWidget *widget)
{
    return widget;
}

/// Adds the operations "<name>-construct", "<name>-repaint" and "<name>-tap" on one widget of
/// \a px; the last one only if something is touched.
void addWidget(const char *name, const char *variant, const char *style_sheet, const Make &make,
    const QSize &px, Touched touched = wholeWidget);

} // namespace bench
