#pragma once
// SPDX-License-Identifier: MIT

#include "contacts.h"
#include "screen.h"

#include <QSortFilterProxyModel>

class QLabel;

namespace vexo::hox::qt::panel {
class OnScreenKeyboard;
}
namespace vexo::hox::qt::ui {
class RowList;
class VexoLineEdit;
class VexoVerticalButtonScrollArea;
} // namespace vexo::hox::qt::ui

/// All persons, with a jump bar, and a search through the keyboard.
class ContactsScreen : public Screen
{
    Q_OBJECT

public:
    explicit ContactsScreen(PanelWindow *panel);

    /// Shows the keyboard instead of the jump bar, or the other way round.
    void setSearching(bool is_searching);

private:
    void setUpSearch();
    void setUpList();
    void setUpBar();
    void dressBar();
    void find(const QString &text);
    void call(const QModelIndex &person);

    Contacts m_contacts;
    QSortFilterProxyModel m_found;
    vexo::hox::qt::ui::VexoLineEdit *const m_search;
    vexo::hox::qt::ui::RowList *const m_list;
    vexo::hox::qt::ui::VexoVerticalButtonScrollArea *const m_bar;
    QLabel *const m_nobody;
    vexo::hox::qt::panel::OnScreenKeyboard *const m_keyboard;
};
