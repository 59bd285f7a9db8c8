#pragma once
// SPDX-License-Identifier: MIT

#include <QBasicTimer>
#include <QObject>
#include <QRegion>
#include <QWidget>

namespace vexo::hox::qt::ui {

/// Makes scrolling cheap: the toolkit moves the pixels of an opaque widget and draws any other
/// anew. So the content of a list counts as opaque while it scrolls and rows hide all that is seen
/// of it.
///
/// Nothing counts as opaque at rest, and rows never do: the toolkit would take an opaque row that a
/// layout has moved, and the content around it, for widgets on which nothing lies, and paint them
/// over a dialog or a notice.
class OpaqueRows : public QObject
{
public:
    /// Belongs to \a content.
    explicit OpaqueRows(QWidget *content);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void follow();
    void claim(bool is_covered);
    static bool isOpaque(const QWidget &widget);
    QRegion bare(const QRegion &area) const;
    bool isHiddenByRows(const QRect &area) const;
    int firstRow(int top) const;
    QRegion besideChildren(const QRegion &area) const;
    void reveal(const QRegion &bare);
    void end();

    QWidget *const m_content;
    QBasicTimer m_scrolling;
    bool m_has_moved = false; // since the timer's last tick
    bool m_is_claimed = false;
};

} // namespace vexo::hox::qt::ui
