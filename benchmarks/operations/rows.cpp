// SPDX-License-Identifier: MIT
#include "benchmarks/operations/operations.h"
#include "benchmarks/operations/panel.h"

#include <CachedVectorIcon>
#include <QLabel>
#include <QSpinBox>
#include <QToolButton>
#include <VexoCenteredVectorButton>
#include <VexoCheckBox>
#include <VexoFunctionButton>
#include <VexoHorizontalTextIconButton>
#include <VexoIconButton>
#include <VexoNumericButton>
#include <VexoPushButton>
#include <VexoRadioButton>

using namespace vexo::hox::qt::ui;

namespace bench {

namespace {

const QSize row_px(800, 98);
const char *const icon_file = ":/widgetimages/RoundButton_S_Tick_Active.svg";
const char *const arrow_file = ":/widgetimages/VexoIconGeneralArrowListRight_44px_C3.svg";

QString title()
{
    return QStringLiteral("Wireless network");
}

template <typename Widget>
QWidget *make(QWidget *parent)
{
    return new Widget(parent);
}

void setFontHeight(QWidget *widget, int px)
{
    QFont font = widget->font();
    font.setPixelSize(px);
    widget->setFont(font);
}

QWidget *makePushButton(QWidget *parent)
{
    auto *button = new VexoPushButton(parent);
    button->setText(title());
    button->setSvgImage(QLatin1String(icon_file), Standard);
    return button;
}

QWidget *makeStockPushButton(QWidget *parent)
{
    auto *button = new QPushButton(title(), parent);
    button->setIcon(QPixmap(CachedVectorIcon(icon_file, QSizeF(0, 4.7)).toPixmap()));
    button->setIconSize(QSize(47, 47));
    setFontHeight(button, 35);
    return button;
}

QWidget *makeRow(QWidget *parent)
{
    auto *row = new VexoFunctionButton(parent, VexoFunctionButton::ActionType);
    row->setText(title());
    return row;
}

QWidget *makeTextIconRow(QWidget *parent)
{
    auto *row = new VexoHorizontalTextIconButton(parent);
    row->setLeftSideText(title());
    row->setMmIndent(3);
    row->setDefaultImage(CachedVectorIcon(arrow_file, QSizeF(0, 8)).toPixmap());
    return row;
}

// A stock row: the text at the left, the arrow behind it.
QWidget *makeStockRow(QWidget *parent)
{
    auto *row = new QPushButton(title(), parent);
    row->setIcon(QPixmap(CachedVectorIcon(arrow_file, QSizeF(0, 8)).toPixmap()));
    row->setIconSize(QSize(80, 80));
    row->setLayoutDirection(Qt::RightToLeft);
    setFontHeight(row, 31);
    return row;
}

QWidget *makeTile(QWidget *parent)
{
    auto *tile = new VexoCenteredVectorButton(parent);
    tile->setIconPath(QLatin1String(icon_file));
    tile->setText(title());
    return tile;
}

QWidget *makeStockTile(QWidget *parent)
{
    auto *tile = new QToolButton(parent);
    tile->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    tile->setText(title());
    tile->setIcon(QPixmap(CachedVectorIcon(icon_file, QSizeF(14, 14)).toPixmap()));
    tile->setIconSize(QSize(140, 140));
    setFontHeight(tile, 31);
    return tile;
}

QWidget *iconOfTile(QWidget *tile)
{
    return static_cast<VexoCenteredVectorButton *>(tile)->getButtonInstance();
}

const char *const pill
    = "QPushButton { border: 1px solid #b4b4b4; border-radius: 30px; margin: 20px"
      " 2px; background: #f5f5f5; color: #3c3c3c; }"
      "QPushButton:pressed { background: #c8c8c8; color: white; }";
const char *const row_look = "QPushButton { border: none; background: #f5f5f5; color: #3c3c3c;"
                             " padding: 0 30px; text-align: left; }"
                             "QPushButton:pressed { background: #505050; color: white; }";
const char *const tile_look = "QToolButton { border: none; background: #f5f5f5; color: #3c3c3c; }"
                              "QToolButton:pressed { border: 1px solid black; }";
const char *const check_look = "QCheckBox::indicator:unchecked { image: url(:/cb_unchecked); }"
                               "QCheckBox::indicator:checked { image: url(:/cb_checked); }"
                               "QRadioButton::indicator:unchecked { image: url(:/rb_unchecked); }"
                               "QRadioButton::indicator:checked { image: url(:/rb_checked); }";
const char *const spin_look = "QSpinBox { border: none; background: #f5f5f5; color: #3c3c3c; }"
                              "QSpinBox::up-button, QSpinBox::down-button { width: 60px; }";

} // namespace

void addRows()
{
    addWidget("push", "library", "", makePushButton, QSize(400, 100));
    addWidget("push", "stock", "", makeStockPushButton, QSize(400, 100));
    addWidget("push", "styled", pill, makeStockPushButton, QSize(400, 100));
    addWidget("row", "library", "", makeRow, row_px);
    addWidget("row", "stock", "", makeStockRow, row_px);
    addWidget("row", "styled", row_look, makeStockRow, row_px);
    addWidget("texticon", "library", "", makeTextIconRow, row_px);
    addWidget("texticon", "stock", "", makeStockRow, row_px);
    addWidget("texticon", "styled", row_look, makeStockRow, row_px);
    addWidget("tile", "library", "", makeTile, QSize(), iconOfTile);
    addWidget("tile", "stock", "", makeStockTile, QSize(300, 280));
    addWidget("tile", "styled", tile_look, makeStockTile, QSize(300, 280));
    // Both draw the box with the stylesheet: the library has no look of its own for it.
    addWidget("check", "library", check_look, make<VexoCheckBox>, QSize());
    addWidget("check", "styled", check_look, make<QCheckBox>, QSize());
    addWidget("radio", "library", check_look, make<VexoRadioButton>, QSize());
    addWidget("radio", "styled", check_look, make<QRadioButton>, QSize());
    // A press on the stepper runs the event loop for 5 ms, so it is not measured.
    addWidget("stepper", "library", "", make<VexoNumericButton>, row_px, nullptr);
    addWidget("stepper", "stock", "", make<QSpinBox>, row_px, nullptr);
    addWidget("stepper", "styled", spin_look, make<QSpinBox>, row_px, nullptr);
}

} // namespace bench
