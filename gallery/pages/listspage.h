#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

#include <VexoFunctionButton>
#include <VexoVerticalButtonScrollArea>

#include <QHash>
#include <QScroller>

class QLayout;

namespace vexo::hox::qt::ui {
class VexoVerticalScrollArea;
}

/// An address book of 300 rows that a finger flicks, also where it meets a slider, and beside it a
/// bar whose letters jump to the first entry with that letter.
class ListsPage : public Page
{
public:
    ListsPage();

private:
    using Row = vexo::hox::qt::ui::VexoFunctionButton;
    using Bar = vexo::hox::qt::ui::VexoVerticalButtonScrollArea;
    using BarType = Bar::VexoVerticalButtonScrollAreaType;

    QWidget *createHeadline();
    QWidget *createList();
    QWidget *createFoot();
    void setUpBar();
    void addBarType(QLayout *row, BarType type, const QString &name);
    void addEntries(QLayout *entries);
    void addRow(QLayout *entries, int index, const QString &name);
    void addVolume(QLayout *entries, const QString &name);
    void note(const QString &text);
    void showState(QScroller::State state);
    void setBarType(BarType type);
    void jump();
    QWidget *targetOf(const QString &button) const;

    vexo::hox::qt::ui::VexoVerticalScrollArea *const m_list;
    Bar *const m_bar;
    QLabel *const m_status;
    QLabel *const m_state;
    QHash<QChar, QWidget *> m_first_rows;
    int m_clicks = 0;
};
