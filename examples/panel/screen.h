#pragma once
// SPDX-License-Identifier: MIT

#include "panelwindow.h"

class QHBoxLayout;
class QVBoxLayout;

/// A screen of the panel: a column below a head with the way back and the title.
class Screen : public QWidget
{
    Q_OBJECT

public:
    explicit Screen(PanelWindow *panel);

protected:
    using Text = std::function<QString()>;

    PanelWindow *panel() const { return m_panel; }
    const Look &look() const { return m_panel->look(); }
    QVBoxLayout *column() const { return m_column; }

    /// Calls \a show now, and whenever look or language have changed.
    void follow(const std::function<void()> &show) { m_panel->follow(this, show); }
    /// Puts the head above what comes; what belongs at its right end goes into the result.
    QHBoxLayout *addHead(const Text &title);
    /// A line of one pixel between two surfaces.
    QWidget *createLine();
    /// Adds rows that a finger scrolls, and returns their layout.
    QVBoxLayout *addList();

private:
    PanelWindow *const m_panel;
    QVBoxLayout *const m_column;
};
