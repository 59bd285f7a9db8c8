// SPDX-License-Identifier: MIT
#include "parts.h"

#include <CachedVectorIcon>
#include <ScalingInfo>
#include <VexoColors>
#include <VexoHorizontalTextIconButton>
#include <VexoIconButton>

#include <QLabel>

using namespace vexo::hox::qt::ui;

const Look &Look::day()
{
    static const Look look{ VexoColors::C2, VexoColors::C0, VexoColors::C3, QColor(100, 100, 100),
        VexoColors::C13, VexoColors::C4, VexoColors::C0, "day" };
    return look;
}

const Look &Look::night()
{
    static const Look look{ QColor(30, 30, 30), QColor(44, 44, 44), VexoColors::C1,
        QColor(170, 170, 170), QColor(70, 70, 70), VexoColors::C13, QColor(30, 30, 30), "night" };
    return look;
}

QString Look::icon(const QString &name) const
{
    return QString(":/panel/%1/%2.svg").arg(folder, name);
}

QString Look::pressedIcon(const QString &name) const
{
    return (this == &day() ? night() : day()).icon(name);
}

int mmX(double mm)
{
    return qMax(1, int(ScalingInfo::inst()->mm2px_X(float(mm))));
}

int mmY(double mm)
{
    return qMax(1, int(ScalingInfo::inst()->mm2px_Y(float(mm))));
}

QSize mmSize(double width, double height)
{
    return QSize(mmX(width), mmY(height));
}

QFont ptFont(double pt, int weight)
{
    QFont font; // family and stretch are those of the application
    font.setPixelSize(qMax(1, int(ScalingInfo::inst()->pt2px_Y(float(pt)))));
    font.setWeight(weight);
    return font;
}

void setGround(QWidget *widget, const QColor &color)
{
    QPalette colors = widget->palette();
    colors.setColor(QPalette::Window, color);
    widget->setPalette(colors);
    widget->setAutoFillBackground(true);
}

void setInk(QLabel *label, const QColor &color)
{
    QPalette colors = label->palette();
    colors.setColor(QPalette::WindowText, color);
    label->setPalette(colors);
}

QLabel *createText(double pt, int weight)
{
    auto *label = new QLabel;
    label->setFont(ptFont(pt, weight));
    label->setTextFormat(Qt::PlainText);
    return label;
}

VexoHorizontalTextIconButton *createRow()
{
    auto *row = new VexoHorizontalTextIconButton;
    row->setFont(ptFont(9));
    row->setPtFontSize(9); // takes the rest of the font over, so it comes after it
    row->setMmHeight(9.8);
    row->setMmIndent(3);
    row->setLeftSideTextPercentWidth(64);
    row->setRightSideTextPercentWidth(30);
    return row;
}

void dress(VexoHorizontalTextIconButton *row, const Look &look)
{
    row->setDefaultTextColor(look.ink);
    row->setDefaultBackgroundColor(look.surface);
    row->setClickedTextColor(look.pressed_ink);
    row->setClickedBackgroundColor(look.pressed);
    const QSizeF arrow_in_mm(0, 6.5);
    row->setDefaultImage(CachedVectorIcon(look.icon("arrow"), arrow_in_mm).toPixmap());
    row->setClickedImage(CachedVectorIcon(look.pressedIcon("arrow"), arrow_in_mm).toPixmap());
}

VexoIconButton *createIconButton()
{
    auto *button = new VexoIconButton;
    button->setMmIconSize(QSizeF(8, 8));
    button->setFixedSize(mmSize(12, 12));
    return button;
}

void dress(VexoIconButton *button, const Look &look, const QString &icon)
{
    button->removeIcons(); // else a state keeps the icon that it has
    button->addIcon(ActiveButton::DEFAULT_STATE_NAME, look.icon(icon));
    const QString touched = ":/panel/touched/" + icon + ".svg"; // an inverse one has no ground here
    button->addIcon(ActiveButton::CLICKED_STATE_NAME, touched);
    button->addIcon(ActiveButton::INACTIVE_STATE_NAME, touched);
}
