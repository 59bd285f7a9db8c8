// SPDX-License-Identifier: MIT
#include "uitest/buttonstates_p.h"

#include "uitest/widgetwalk_p.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QRegion>

namespace vexo::hox::qt::uitest {

namespace {

Qt::CheckState checkOf(const QAbstractButton *button)
{
    if (const auto *box = qobject_cast<const QCheckBox *>(button))
        return box->checkState();
    return button->isChecked() ? Qt::Checked : Qt::Unchecked;
}

void check(QAbstractButton *button, Qt::CheckState state)
{
    auto *box = qobject_cast<QCheckBox *>(button);
    if (box && box->isTristate())
        box->setCheckState(state);
    else
        button->setChecked(state == Qt::Checked);
}

} // namespace

ButtonStates::ButtonStates(QWidget *window)
    : m_silence(window)
{
    const Widgets shown = shownWidgets(window);
    for (QWidget *widget : shown) {
        auto *button = qobject_cast<QAbstractButton *>(widget);
        if (button && button->isEnabled())
            m_buttons.append(
                { button, button->isDown(), button->autoExclusive(), checkOf(button) });
    }
}

ButtonStates::~ButtonStates()
{
    restore();
}

template <typename Use>
void ButtonStates::forEach(Use use) const
{
    for (const Button &entry : m_buttons) {
        if (QAbstractButton *button = entry.button)
            use(button, entry);
    }
}

bool ButtonStates::canCheck() const
{
    bool can = false;
    forEach([&](QAbstractButton *button, const Button &) { can = can || button->isCheckable(); });
    return can;
}

QRegion ButtonStates::places() const
{
    QRegion places;
    forEach([&](QAbstractButton *button, const Button &) {
        places += placeIn(button->window(), button, button->rect());
    });
    return places;
}

void ButtonStates::setDown(bool down)
{
    forEach([=](QAbstractButton *button, const Button &) { button->setDown(down); });
}

// A group would take a check away from another button, and keep no button for the one that had
// been checked in the end.
void ButtonStates::flip()
{
    leaveGroups();
    forEach([](QAbstractButton *button, const Button &) { button->setAutoExclusive(false); });
    forEach([](QAbstractButton *button, const Button &was) {
        if (button->isCheckable())
            check(button, was.check == Qt::Unchecked ? Qt::Checked : Qt::Unchecked);
    });
}

void ButtonStates::restore()
{
    forEach([](QAbstractButton *button, const Button &was) {
        if (button->isCheckable())
            check(button, was.check);
    });
    forEach([](QAbstractButton *button, const Button &was) {
        button->setAutoExclusive(was.is_exclusive);
        button->setDown(was.is_down);
    });
    joinGroups();
}

void ButtonStates::leaveGroups()
{
    QVector<QButtonGroup *> groups;
    forEach([&](QAbstractButton *button, const Button &) {
        QButtonGroup *group = button->group();
        if (group && !groups.contains(group))
            groups.append(group);
    });
    for (QButtonGroup *group : qAsConst(groups)) {
        const QList<QAbstractButton *> buttons = group->buttons();
        for (QAbstractButton *button : buttons)
            m_members.append({ group, button, group->id(button) });
        for (QAbstractButton *button : buttons)
            group->removeButton(button);
    }
}

void ButtonStates::joinGroups()
{
    for (const Member &member : qAsConst(m_members)) {
        QButtonGroup *group = member.group;
        if (group && member.button)
            group->addButton(member.button, member.id);
    }
    m_members.clear();
}

} // namespace vexo::hox::qt::uitest
