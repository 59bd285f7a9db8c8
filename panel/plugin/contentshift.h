#pragma once
// SPDX-License-Identifier: MIT

#include <QObject>
#include <QPointer>
#include <QVector>
#include <QWidget>

/// Moves what a window holds up, and down again, and keeps it there whatever a layout does
/// meanwhile.
class ContentShift : public QObject
{
public:
    ~ContentShift() override;

    /// Leaves alone \a stays, notices, dimmers, and what is added to the window later.
    void setWindow(QWidget *window, const QWidget *stays);
    /// The content lies \a up_px higher than without a shift, and leaves \a below_px of the window
    /// free at its bottom.
    void set(int up_px, int below_px);
    int upPx() const { return m_up; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void takeChildren(const QWidget *window);
    void leaveChildren(QWidget *window);
    void move(QWidget *child, int up_px);

    QPointer<QWidget> m_window;
    const QWidget *m_stays = nullptr; // compared only
    QVector<QPointer<QWidget>> m_children; // that are moved
    int m_up = 0; // px
    int m_below = 0; // px
    bool m_is_moving = false;
};
