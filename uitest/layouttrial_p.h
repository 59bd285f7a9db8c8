#pragma once
// SPDX-License-Identifier: MIT

#include "uitest/silence_p.h"

#include <QLayout>
#include <QScrollBar>

#include <functional>

namespace vexo::hox::qt::uitest {

/// Lays a window out with other texts, or in the other direction, in the size that it has: a panel
/// does not grow. When it ends, all is as it was, and no signal has been emitted.
class LayoutTrial
{
public:
    explicit LayoutTrial(QWidget *window);
    ~LayoutTrial();
    LayoutTrial(const LayoutTrial &) = delete;
    LayoutTrial &operator=(const LayoutTrial &) = delete;

    /// Each text that the application gave, \a factor times as long: properties whose name ends in
    /// text or title, and tabs. Not what a user types, nor what a model holds.
    void lengthen(double factor);
    void turn(); ///< from right to left
    void restore();

private:
    void lengthenProperties(QWidget *widget, double factor);
    void layOut();
    void restoreScrollBars();

    const QPointer<QWidget> m_window;
    Silence m_silence;
    QPointer<QLayout> m_layout;
    QLayout::SizeConstraint m_constraint = QLayout::SetDefaultConstraint;
    QVector<QPair<QPointer<QScrollBar>, int>> m_bars; // with their values
    QVector<std::function<void()>> m_changes; // that write what is to come
    QVector<std::function<void()>> m_restorers;
};

} // namespace vexo::hox::qt::uitest
