// SPDX-License-Identifier: MIT
#include "gallery/pages/iconbuttonspage.h"

#include "gallery/measures.h"
#include "gallery/widgets/signallog.h"
#include "gallery/widgets/tilelayout.h"

#include <VexoColors>
#include <VexoIconButton>

#include <QHBoxLayout>
#include <QLabel>

using namespace vexo::hox::qt::ui;

namespace {

const QSizeF icon_in_mm(8, 8);

void addIcons(ActiveVectorButton *button, const QString &icon)
{
    button->setMmIconSize(icon_in_mm);
    button->addIcon(
        ActiveButton::DEFAULT_STATE_NAME, QString(":/widgetimages/%1_Active.svg").arg(icon));
    button->addIcon(
        ActiveButton::CLICKED_STATE_NAME, QString(":/widgetimages/%1_Pressed.svg").arg(icon));
    button->addIcon(
        ActiveButton::INACTIVE_STATE_NAME, QString(":/widgetimages/%1_Inactive.svg").arg(icon));
}

const char *const plus = "Icons_Round_Small/RoundButton_S_Plus";
const char *const minus = "Icons_Round_Small/RoundButton_S_Minus";

VexoIconButton *createButton(const QString &tooltip, const QString &icon = plus)
{
    auto *button = new VexoIconButton;
    addIcons(button, icon);
    button->setFixedSize(mmSize(14, 14));
    button->setToolTip(tooltip);
    return button;
}

// A button of one icon, which shows a press by the inverse of it.
VexoIconButton *createPlainButton(const QString &tooltip, const QString &icon)
{
    auto *button = new VexoIconButton;
    button->addIcon(ActiveButton::DEFAULT_STATE_NAME, icon);
    button->setMmIconSize(QSizeF(0, 8));
    button->createMissingInverseIcons();
    button->setFixedSize(mmSize(14, 14));
    button->setToolTip(tooltip);
    return button;
}

QWidget *onGround(QWidget *widget, const QColor &color)
{
    auto *ground = new QWidget;
    ground->setAutoFillBackground(true);
    ground->setPalette(color);
    auto *layout = new QHBoxLayout(ground);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(widget);
    ground->setFixedSize(mmSize(14, 14));
    return ground;
}

} // namespace

IconButtonsPage::IconButtonsPage()
    : Page("Icon buttons",
        "A button knows named states, each with an icon rendered once at a size in millimetres. "
        "Press them: each look follows the finger.")
{
    m_slow.start(1000);
    m_fast.start(500);
    addStates();
    addBlinking();
    addOneShot();
    addEasyAccess();
}

void IconButtonsPage::addStates()
{
    TileLayout *tiles = addTiles("States", 18);
    const auto add = [tiles](QWidget *widget, const QString &caption) {
        tiles->addLayout(createCaptioned(widget, caption));
    };
    add(onGround(createButton("Plus"), VexoColors::C1), "default");
    VexoIconButton *clicked = createButton("Plus, checked");
    clicked->setCheckable(true);
    clicked->setChecked(true);
    add(onGround(clicked, VexoColors::C1), "clicked");
    VexoIconButton *inactive = createButton("Plus, disabled");
    inactive->setEnabled(false);
    add(onGround(inactive, VexoColors::C1), "inactive");
    VexoIconButton *generated = createPlainButton("Shift, dark", ":/VexoIconGeneralShift");
    generated->setCheckable(true);
    generated->setChecked(true);
    add(onGround(generated, VexoColors::C4), "inverse");
    VexoIconButton *plain = createPlainButton("Shift", ":/VexoIconGeneralShift");
    add(onGround(plain, VexoColors::C1), "no clicked icon");
}

void IconButtonsPage::addBlinking()
{
    TileLayout *tiles = addTiles("Blinking in step", 50);
    for (QTimer *timer : { &m_slow, &m_fast }) {
        auto *row = new QHBoxLayout;
        row->setSpacing(mmX(2));
        for (const char *icon : { plus, minus }) {
            VexoIconButton *button = createButton("Blinking", icon);
            startBlinking(button, timer);
            row->addWidget(onGround(button, VexoColors::C1));
        }
        row->addWidget(createText(QString("every %1 ms").arg(timer->interval())), 1);
        tiles->addLayout(row);
    }
}

void IconButtonsPage::addOneShot()
{
    addSection("One-shot");
    auto *button = new ActiveVectorButton;
    addIcons(button, "RoundButton_S_Tick");
    button->setToolTip("Confirm");
    button->setAutoRaise(true);
    button->setIconSize(button->pxIconSize());
    button->setFixedSize(mmSize(14, 14));
    connect(button, &ActiveVectorButton::clicked, button, [button] {
        button->oneShot(ActiveButton::CLICKED_STATE_NAME, ActiveButton::DEFAULT_STATE_NAME);
    });
    auto *row = new QHBoxLayout;
    row->setSpacing(mmX(4));
    row->addWidget(onGround(button, VexoColors::C1));
    row->addWidget(
        createText("A click shows the clicked icon for 1000 ms, then the default one."), 1);
    addBlock(row);
}

void IconButtonsPage::addEasyAccess()
{
    addSection("Easy access");
    auto *log = new SignalLog("The clicks appear here.");
    VexoIconButton *button = createButton("Easy access", minus);
    connect(button, &Button::clicked, log, [log] { log->note("Minus", "clicked()"); });
    auto *row = new QHBoxLayout;
    row->setSpacing(mmX(4));
    row->addWidget(onGround(button, VexoColors::C1));
    row->addWidget(createText("A finger that slides up to 20 px off the button still clicks."), 1);
    addBlock(row);
    log->setFixedHeight(mmY(14));
    addBlock(log);
}

// The first paint of a button applies DEFAULT, so the blink starts after it.
void IconButtonsPage::startBlinking(Button *button, QTimer *timer)
{
    button->setTimer(timer);
    button->initialize(ActiveButton::DEFAULT_STATE_NAME);
    button->blink(ActiveButton::DEFAULT_STATE_NAME, ActiveButton::CLICKED_STATE_NAME);
}
