#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"
#include "gallery/pages/contacts.h"

#include <VexoVerticalButtonScrollArea>

#include <QModelIndex>
#include <QScroller>

class QLayout;

namespace vexo::hox::qt::ui {
class RowList;
}

/// The address book in a list that a finger flicks, also where it meets a slider, and beside it a
/// bar whose letters jump to the first entry with that letter.
class ListsPage : public Page
{
public:
    ListsPage();

private:
    using Bar = vexo::hox::qt::ui::VexoVerticalButtonScrollArea;
    using BarType = Bar::VexoVerticalButtonScrollAreaType;

    QWidget *createHeadline();
    QWidget *createList();
    QWidget *createFoot();
    void setUpBar();
    void addBarType(QLayout *row, BarType type, const QString &name);
    QWidget *createVolume();
    void showVolume(QWidget *row, const QModelIndex &index);
    void note(const QString &text);
    void showState(QScroller::State state);
    void setBarType(BarType type);
    void jump();

    Contacts m_contacts;
    vexo::hox::qt::ui::RowList *const m_list;
    Bar *const m_bar;
    QLabel *const m_status;
    QLabel *const m_state;
    int m_clicks = 0;
};
