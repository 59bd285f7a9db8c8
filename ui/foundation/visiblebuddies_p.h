#pragma once
// SPDX-License-Identifier: MIT

#include <QPointer>
#include <QVector>
#include <QWidget>

namespace vexo::hox::qt::ui {

/// Widgets that are shown and hidden together with their owner. They are not owned: one that has
/// been destroyed is skipped.
class VisibleBuddies
{
public:
    VisibleBuddies() = default;
    ~VisibleBuddies();
    VisibleBuddies(const VisibleBuddies &) = delete;
    VisibleBuddies &operator=(const VisibleBuddies &) = delete;

    /// Appends \a buddy; null is ignored, a repeated one is shown and hidden repeatedly.
    void add(QWidget *buddy);
    /// The same for an owner that hides its buddies at once. Returns \a buddy.
    QWidget *addHidden(QWidget *buddy);
    void clear();
    /// Calls \a show_owner, which shows or hides the \a owner of this list, and then shows or hides
    /// the buddies in the order they were added. The list may change meanwhile, and owner and
    /// buddies may be destroyed. A call from within leaves the buddies alone, so that buddies of
    /// each other make one round.
    template <typename ShowOwner>
    void setVisible(const QWidget *owner, bool visible, ShowOwner show_owner)
    {
        const QPointer<const QWidget> guard(owner);
        show_owner();
        if (guard)
            follow(visible);
    }

private:
    void follow(bool visible);

    QVector<QPointer<QWidget>> m_buddies;
    bool *m_is_gone = nullptr; // set during a round; told when the owner is destroyed in it
};

} // namespace vexo::hox::qt::ui
