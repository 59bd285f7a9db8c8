#pragma once
// SPDX-License-Identifier: MIT

#include "uitest/silence_p.h"

#include <QAbstractButton>

class QButtonGroup;

namespace vexo::hox::qt::uitest {

/// Shows the enabled buttons of a window in other states than theirs, and leaves them as they were:
/// no signal is emitted, and the groups know the same buttons as before.
class ButtonStates
{
public:
    explicit ButtonStates(QWidget *window);
    ~ButtonStates();
    ButtonStates(const ButtonStates &) = delete;
    ButtonStates &operator=(const ButtonStates &) = delete;

    bool isEmpty() const { return m_buttons.isEmpty(); }
    bool canCheck() const;
    /// Where the buttons are, px of the window that \a window lies in.
    QRegion places() const;
    /// Each is down, or up again.
    void setDown(bool down);
    /// Each that is checkable shows the other state.
    void flip();
    /// As they were when this object was made.
    void restore();

private:
    struct Button
    {
        QPointer<QAbstractButton> button;
        bool is_down = false;
        bool is_exclusive = false;
        Qt::CheckState check = Qt::Unchecked;
    };
    struct Member
    {
        QPointer<QButtonGroup> group;
        QPointer<QAbstractButton> button;
        int id = 0;
    };

    template <typename Use>
    void forEach(Use use) const;
    void leaveGroups();
    void joinGroups();

    Silence m_silence;
    QVector<Button> m_buttons;
    QVector<Member> m_members; // in the order in which they joined
};

} // namespace vexo::hox::qt::uitest
