// SPDX-License-Identifier: MIT
#include "gallery/pages/measuredbuttonpage.h"

#include "gallery/measures.h"
#include "gallery/widgets/lamp.h"
#include "gallery/widgets/signallog.h"
#include "gallery/widgets/tilelayout.h"

#include <EasyAccessButton>
#include <MeasuredPushButton>
#include <VexoColors>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QVBoxLayout>

using namespace vexo::hox::qt::ui;

namespace {

const unsigned int pulse_ms = 200;
const double easy_margin_in_mm = 4;

// What a button does that lets a finger slide off a little: it reports the moves and clicks itself
// when the release counts.
class EasyButton : public MeasuredPushButton, public EasyAccessButton
{
protected:
    using MeasuredPushButton::mouseReleaseEvent;

    void mouseMoveEvent(QMouseEvent *event) override
    {
        MeasuredPushButton::mouseMoveEvent(event);
        mouseWasMoved(event->x(), event->y(), width(), height());
    }

    void mouseReleaseEvent(QMouseEvent *event) override
    {
        const QPointer<EasyButton> self(this); // a slot may delete the button
        MeasuredPushButton::mouseReleaseEvent(event);
        if (!self || !mouseWasReleased())
            return;
        event->accept();
        Q_EMIT clicked(false);
    }
};

// Draws the outline of the margin around its only child.
class MarginOutline : public QWidget
{
public:
    MarginOutline(QWidget *child, int margin_px)
    {
        auto *layout = new QVBoxLayout(this);
        const int room = margin_px + 1;
        layout->setContentsMargins(room, room, room, room);
        layout->addWidget(child);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setPen(QPen(VexoColors::C5, mmX(0.2)));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
};

void setUpButton(MeasuredPushButton *button, const QString &text, const QSize &px)
{
    const QString sheet = "QToolButton { background: %1; color: %2; border: %3px solid %4;"
                          " border-radius: %5px; padding: 0 %6px; }"
                          "QToolButton:pressed { background: %7; color: %8; }";
    button->setStyleSheet(sheet.arg(VexoColors::C1.name(), VexoColors::C3.name())
                              .arg(mmX(0.2))
                              .arg(VexoColors::C12.name())
                              .arg(mmX(1))
                              .arg(mmX(3))
                              .arg(VexoColors::C4.name(), VexoColors::C0.name()));
    button->setFont(ptFont(9, QFont::Medium));
    button->setText(text);
    button->setMinimumSize(px.expandedTo(button->sizeHint())); // stretched text needs more
}

// What is hidden leaves a gap, so that nothing jumps.
void keepPlace(QWidget *widget)
{
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
}

QString number(uint value)
{
    return QString::number(value);
}

QString truth(bool value)
{
    return value ? "true" : "false";
}

QHBoxLayout *createRow(QWidget *first = nullptr)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(mmX(4));
    row->setAlignment(Qt::AlignLeft);
    if (first)
        row->addWidget(first);
    return row;
}

QVBoxLayout *createColumn(QWidget *upper, QWidget *lower)
{
    auto *column = new QVBoxLayout;
    column->setSpacing(mmY(2));
    column->addStretch();
    column->addWidget(upper, 0, Qt::AlignLeft);
    column->addWidget(lower);
    column->addStretch();
    return column;
}

} // namespace

MeasuredButtonPage::MeasuredButtonPage()
    : Page("Measured button",
        "Measures how long it is held: reports a long press after 300 ms while the finger is still "
        "down, and tells short from long at the release.")
    , m_log(new SignalLog("The signals of the buttons on this page appear here."))
    , m_pulses(createText("Pulses: 0", 9))
{
    addPress();
    addBuddies();
    addEasyAccess();
}

void MeasuredButtonPage::countPulse()
{
    m_pulses->setText(QString("Pulses: %1").arg(++m_pulse_count));
}

void MeasuredButtonPage::addPress()
{
    addSection("Press, hold, release");
    auto *button = new Button;
    setUpButton(button, "Press and hold", mmSize(36, 20));
    logSignals(button, "Press and hold");
    QLabel *tone = createText("Tone");
    tone->setAlignment(Qt::AlignCenter);
    QVBoxLayout *lamp = createColumn(new Lamp(8), tone);
    lamp->setAlignment(Qt::AlignLeft);
    QHBoxLayout *row = createRow();
    row->addWidget(button);
    row->addLayout(lamp);
    row->addStretch();
    TileLayout *tiles = addTiles(50);
    tiles->addLayout(row);
    tiles->addLayout(createPulseControls(button));
    m_log->setFixedHeight(mmY(30));
    addBlock(m_log);
}

QLayout *MeasuredButtonPage::createPulseControls(Button *button)
{
    auto *pulse_switch = new QCheckBox(QString("Pulse every %1 ms").arg(pulse_ms));
    connect(pulse_switch, &QCheckBox::toggled, button, &Button::enablePulse);
    button->pulse(pulse_ms, this, SLOT(countPulse()));
    return createColumn(pulse_switch, m_pulses);
}

void MeasuredButtonPage::addBuddies()
{
    addSection("Visible buddies");
    auto *button = new Button;
    setUpButton(button, "With buddies", mmSize(40, 12));
    logSignals(button, "With buddies");
    keepPlace(button);
    QHBoxLayout *buddies = createRow();
    for (const char *text : { "First buddy", "Second buddy" }) {
        QLabel *buddy = createText(text);
        const QString sheet = "QLabel { background: %1; padding: %2px; }";
        buddy->setStyleSheet(sheet.arg(VexoColors::C2.name()).arg(mmX(2)));
        keepPlace(buddy);
        button->addVisibleBuddy(buddy);
        buddies->addWidget(buddy);
    }
    TileLayout *tiles = addTiles(50);
    tiles->addLayout(createRow(button));
    tiles->addLayout(buddies);
    auto *visible = new QCheckBox("Show the button and its buddies");
    visible->setChecked(true);
    connect(visible, &QCheckBox::toggled, button, &Button::setVisible);
    addBlock(visible);
}

void MeasuredButtonPage::addEasyAccess()
{
    addSection("Easy access");
    const int margin_px = mmX(easy_margin_in_mm);
    auto *button = new EasyButton;
    setUpButton(button, "Slide off a little", mmSize(40, 12));
    button->setEasyPress(true, margin_px);
    logSignals(button, "Slide off a little");
    TileLayout *tiles = addTiles(50);
    tiles->addLayout(createRow(new MarginOutline(button, margin_px)));
    tiles->addWidget(createText("A finger that slips off the button still clicks when it is lifted "
                                "inside the outline."));
}

void MeasuredButtonPage::logSignals(Button *button, const QString &name)
{
    const auto note = [this, name](const QString &signal) { m_log->note(name, signal); };
    connect(button, &Button::pressed, this, [note] { note("pressed()"); });
    connect(button, &Button::released, this, [note] { note("released()"); });
    connect(button, &Button::clicked, this,
        [note](bool checked) { note("clicked(" + truth(checked) + ")"); });
    connect(button, &Button::pressedDelayed, this,
        [note](uint ms) { note("pressedDelayed(" + number(ms) + ")"); });
    connect(button, &Button::keyPressHandling, this, [note](uint ms, bool is_short, bool is_held) {
        note("keyPressHandling("
            + QStringList{ number(ms), truth(is_short), truth(is_held) }.join(", ") + ")");
    });
}
