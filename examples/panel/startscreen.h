#pragma once
// SPDX-License-Identifier: MIT

#include "screen.h"

#include <QBasicTimer>

class QGridLayout;
class QLabel;

namespace vexo::hox::qt::ui {
class VexoDesignVectorButton;
}

/// The time of day, and a tile for each thing that the panel does.
class StartScreen : public Screen
{
    Q_OBJECT

public:
    explicit StartScreen(PanelWindow *panel);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    using Tile = vexo::hox::qt::ui::VexoDesignVectorButton;

    QWidget *createClock();
    Tile *addTile(const QString &icon, const Text &text, const Text &subtext);
    void addWay(const QString &screen, const QString &icon, const Text &text, const Text &subtext);
    void addTiles();
    void addNightTile();
    void showTime();

    QLabel *const m_time;
    QLabel *const m_date;
    QGridLayout *const m_tiles;
    QBasicTimer m_minute;
};
