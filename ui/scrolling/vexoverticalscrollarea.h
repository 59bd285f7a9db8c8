#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"

#include <QScrollArea>
#include <QScroller>

#include <memory>

class QMouseEvent;

namespace vexo::hox::qt::ui {

class TouchWatch;
class VexoSlider;

/// The panel's list: scrolls vertically by a finger that flicks, without overshoot and at no more
/// than 0.7 m/s. A press reaches the rows after 0.15 s or at the release; after 5 mm the finger
/// scrolls, and no row clicks. A swipe that begins on a slider beside its handle scrolls once the
/// slider is handed to forwardSliderEvents(). Its widget is mostly a VexoVerticalScrollContent.
///
/// The area is a child of a window, never one itself. Where an application has a stylesheet, give
/// the area its place in the window before its widget: the toolkit styles all rows anew whenever
/// the area, or what it lies in, gets another parent. A slot of a row may delete the row; to delete
/// the area use deleteLater() there and in scrollerStateChanged(), since the toolkit is still at
/// the gesture.
class HOXQUI_EXPORT VexoVerticalScrollArea : public QScrollArea
{
    Q_OBJECT

    /// Whether the vertical scroll bar is shown, also when everything fits. Default false.
    Q_PROPERTY(bool scroll_bar_enabled MEMBER m_scroll_bar_enabled WRITE setScrollBarEnabled)

public:
    /// \a scroll_bar_enabled as the property of that name.
    explicit VexoVerticalScrollArea(QWidget *parent = nullptr, bool scroll_bar_enabled = false);
    ~VexoVerticalScrollArea() override;

    void setScrollBarEnabled(bool enabled);
    /// Jumps, without an animation.
    void scrollToTop();
    /// Belongs to the toolkit and lives as long as the area.
    QScroller *getScroller() { return m_scroller; }
    /// Lets a touch of \a slider that misses its handle scroll the list. Once for each slider; null
    /// is ignored.
    void forwardSliderEvents(VexoSlider *slider);

Q_SIGNALS:
    /// Tells a tap from a scroll.
    void scrollerStateChanged(QScroller::State newstate);

private Q_SLOTS:
    void press(QMouseEvent *event);
    void move(QMouseEvent *event);
    void release(QMouseEvent *event);
    void scrollContentsBy(int dx, int dy) override;

private:
    friend class RowList; // extends scrollContentsBy()

    void tuneScroller();
    void watchTouch(QScroller::State state);
    void letGo();
    void passToScroller(QScroller::Input input, const QMouseEvent *event);
    QPointF positionOf(const QMouseEvent &event) const;

    QScroller *const m_scroller;
    bool m_scroll_bar_enabled;
    std::unique_ptr<TouchWatch> m_touch; // as long as the finger holds the list
};

} // namespace vexo::hox::qt::ui
