// SPDX-License-Identifier: MIT
#include "startscreen.h"

#include <PageStack>
#include <ScalingInfo>
#include <VexoDesignVectorButton>

#include <QDateTime>
#include <QLabel>
#include <QLocale>
#include <QTimerEvent>
#include <QVBoxLayout>

using namespace vexo::hox::qt::panel;
using namespace vexo::hox::qt::ui;

namespace {

const int tiles = 6;
const double margin_in_mm = 4;
const double gap_in_mm = 2;

/// How a panel is divided, mm and pt.
struct Plan
{
    Plan();

    bool is_narrow;
    bool is_low;
    int columns;
    double clock_in_mm;
    double tile_in_mm;
    double icon_in_mm;
};

// A tile is as high as what the clock leaves lets it be.
Plan::Plan()
{
    const QSizeF panel = ScalingInfo::inst()->m_size_mm;
    is_narrow = panel.width() < 130;
    is_low = panel.height() < 70;
    columns = is_narrow ? 2 : 3;
    clock_in_mm = is_low ? 11 : 20;
    const int rows = tiles / columns;
    const double free = panel.height() - clock_in_mm - margin_in_mm - (rows - 1) * gap_in_mm;
    tile_in_mm = qBound(10.0, free / rows, 44.0);
    icon_in_mm = qBound(7.0, tile_in_mm / 2, 12.0);
}

const Plan &plan()
{
    static const Plan plan;
    return plan;
}

// The toolkit lays out and paints anew for a text that is the same, too.
void showText(QLabel *label, const QString &text)
{
    if (label->text() != text)
        label->setText(text);
}

} // namespace

StartScreen::StartScreen(PanelWindow *panel)
    : Screen(panel)
    , m_time(createText(plan().is_low ? 16 : 28))
    , m_date(createText(plan().is_narrow ? 9 : 11, QFont::Normal))
    , m_tiles(new QGridLayout)
{
    setWindowTitle("Start");
    column()->addWidget(createClock());
    column()->addLayout(m_tiles);
    column()->addStretch(1);
    m_tiles->setContentsMargins(mmX(margin_in_mm), 0, mmX(margin_in_mm), mmY(margin_in_mm));
    m_tiles->setHorizontalSpacing(mmX(gap_in_mm));
    m_tiles->setVerticalSpacing(mmY(gap_in_mm));
    addTiles();
    follow([this] { showTime(); });
}

QWidget *StartScreen::createClock()
{
    auto *clock = new QWidget;
    clock->setFixedHeight(mmY(plan().clock_in_mm));
    auto *row = new QHBoxLayout(clock);
    row->setContentsMargins(mmX(margin_in_mm), 0, mmX(margin_in_mm), 0);
    row->addWidget(m_time);
    row->addStretch(1);
    row->addWidget(m_date);
    follow([this] { setInk(m_date, look().faint); });
    return clock;
}

StartScreen::Tile *StartScreen::addTile(const QString &icon, const Text &text, const Text &subtext)
{
    auto *tile = new Tile;
    const double icon_in_mm = plan().icon_in_mm;
    tile->setMmHeight(plan().tile_in_mm);
    tile->setMmIconSize(QSizeF(0, icon_in_mm));
    tile->setMmIconPos(QPointF(4 + icon_in_mm / 2, plan().tile_in_mm / 2));
    tile->setMmIndent(icon_in_mm + 7);
    tile->setPtTextFontSize(plan().is_low ? 9 : 10);
    tile->setPtSubtextFontSize(7);
    const int place = m_tiles->count();
    m_tiles->addWidget(tile, place / plan().columns, place % plan().columns);
    m_tiles->setColumnStretch(place % plan().columns, 1);
    follow([=] {
        tile->setText(text());
        tile->setSubtext(subtext());
        tile->setBackgroundColor(look().surface);
        tile->setTextColor(look().ink);
        tile->setBackgroundClickedColor(look().pressed);
        tile->setTextClickedColor(look().pressed_ink);
        tile->removeIcons();
        tile->addIcon(ActiveButton::DEFAULT_STATE_NAME, look().icon(icon));
        tile->addInverseIcon(ActiveButton::DEFAULT_STATE_NAME, look().pressedIcon(icon));
    });
    return tile;
}

void StartScreen::addWay(
    const QString &screen, const QString &icon, const Text &text, const Text &subtext)
{
    PageStack *stack = panel()->stack();
    connect(addTile(icon, text, subtext), &Tile::clicked, stack, [=] { stack->open(screen); });
}

void StartScreen::addTiles()
{
    addWay(
        "contacts", "contacts", [] { return tr("Contacts"); }, [] { return tr("Call somebody"); });
    addWay(
        "camera", "camera", [] { return tr("Camera"); }, [] { return tr("Front door"); });
    addWay(
        "settings", "settings", [] { return tr("Settings"); },
        [] { return tr("Display, language"); });
    addWay(
        "info", "device", [] { return tr("Device"); }, [] { return tr("Versions, screen"); });
    addWay(
        "pin", "update", [] { return tr("Update"); }, [] { return tr("Needs the PIN"); });
    addNightTile();
}

void StartScreen::addNightTile()
{
    const Text state = [this] { return panel()->isNight() ? tr("Is on") : tr("Is off"); };
    const Tile *tile = addTile(
        "night", [] { return tr("Night look"); }, state);
    connect(tile, &Tile::clicked, panel(), [this] { panel()->setNight(!panel()->isNight()); });
}

void StartScreen::showEvent(QShowEvent *)
{
    showTime();
}

void StartScreen::hideEvent(QHideEvent *)
{
    m_minute.stop();
}

void StartScreen::timerEvent(QTimerEvent *)
{
    showTime();
}

// Waits for the next minute, so that nothing is done in between.
void StartScreen::showTime()
{
    const QDateTime now = QDateTime::currentDateTime();
    showText(m_time, now.time().toString("hh:mm"));
    showText(m_date, locale().toString(now.date(), QLocale::LongFormat));
    if (isVisible())
        m_minute.start(60 * 1000 - now.time().msecsSinceStartOfDay() % (60 * 1000), this);
}
