#pragma once
// SPDX-License-Identifier: MIT

#include "uitest/silence_p.h"

#include <QLayout>
#include <QMetaProperty>
#include <QScrollBar>

#include <functional>

class QTabBar;

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
    struct Text
    {
        QPointer<QWidget> widget;
        QMetaProperty property;
        QString was;
    };

    void keepTexts(QWidget *widget);
    void restoreTexts();
    void lengthenTabs(QTabBar *tabs, double factor);
    void layOut();
    void restoreScrollBars();

    const QPointer<QWidget> m_window;
    Silence m_silence;
    QPointer<QLayout> m_layout;
    QLayout::SizeConstraint m_constraint = QLayout::SetDefaultConstraint;
    QVector<QPair<QPointer<QScrollBar>, int>> m_bars; // with their values
    QVector<Text> m_texts; // all that could change
    QVector<std::function<void()>> m_restorers; // of everything else
};

} // namespace vexo::hox::qt::uitest
