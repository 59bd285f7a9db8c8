// SPDX-License-Identifier: MIT
// What docs/placing.md shows; docs/pictures.cpp renders it.
#include <CachedVectorIcon>
#include <ScalingInfo>
#include <VexoColors>
#include <VexoDesignVectorButton>
#include <VexoFunctionButton>
#include <VexoHorizontalTextIconButton>
#include <VexoKeyboardButton>
#include <VexoRuler>
#include <VexoSlider>
#include <VexoVerticalScrollArea>
#include <VexoVerticalScrollContent>

#include <QGridLayout>
#include <QLabel>

using namespace vexo::hox::qt::ui;

int mmX(double mm) // along a line; mmY() is the same with mm2px_Y()
{
    return int(ScalingInfo::inst()->mm2px_X(float(mm)));
}

QLabel *createText(const QString &text, double pt, int weight)
{
    QFont font; // the application's, whose family Panel::setUp() has chosen
    font.setPixelSize(int(ScalingInfo::inst()->pt2px_Y(float(pt))));
    font.setWeight(weight);
    auto *label = new QLabel(text);
    label->setFont(font);
    return label;
}

int mmY(double mm)
{
    return int(ScalingInfo::inst()->mm2px_Y(float(mm)));
}

void setGround(QWidget *widget, const QColor &color)
{
    QPalette colors = widget->palette();
    colors.setColor(QPalette::Window, color);
    widget->setPalette(colors);
    widget->setAutoFillBackground(true);
}

QLayout *addList(QLayout *place)
{
    auto *area = new VexoVerticalScrollArea;
    place->addWidget(area); // first, so that its rows are styled only once
    auto *content = new VexoVerticalScrollContent;
    setGround(content, VexoColors::C0);
    area->setWidget(content);
    return content->layout(); // for as many rows as you like
}

void addWithRuler(QLayout *list, QWidget *row)
{
    list->addWidget(row);
    list->addWidget(new VexoRuler); // a dark line and a light one, 1 px each
}

void addHeading(QLayout *list, const QString &text)
{
    QLabel *heading = createText(text, 7, QFont::Normal);
    heading->setFixedHeight(mmY(8));
    heading->setAlignment(Qt::AlignBottom);
    heading->setContentsMargins(mmX(3), 0, mmX(3), mmY(1)); // 3 mm is the indent of the rows
    addWithRuler(list, heading);
}

VexoHorizontalTextIconButton *createValueRow(const QString &name, const QString &value)
{
    auto *row = new VexoHorizontalTextIconButton;
    row->setLeftSideText(name);
    row->setRightSideText(value);
    QFont font = row->font();
    font.setWeight(QFont::Medium);
    row->setFont(font);
    row->setPtFontSize(9); // takes the rest of the font over, so it comes after it
    row->setMmHeight(9.8);
    row->setMmIndent(3);
    row->setLeftSideTextPercentWidth(64);
    row->setRightSideTextPercentWidth(30); // 6 % are left for the arrow, which is centred in them
    row->setDefaultTextColor(VexoColors::C3);
    row->setDefaultBackgroundColor(VexoColors::C1);
    row->setClickedBackgroundColor(VexoColors::C4);
    const QString arrow = ":/widgetimages/VexoIconGeneralArrowListRight_44px_%1.svg";
    row->setDefaultImage(CachedVectorIcon(arrow.arg("C3"), QSizeF(0, 8)).toPixmap());
    row->setClickedImage(CachedVectorIcon(arrow.arg("C0"), QSizeF(0, 8)).toPixmap());
    return row;
}

QWidget *createSliderRow(const QString &name, VexoSlider *slider, int percent)
{
    auto *row = new QWidget;
    setGround(row, VexoColors::C1);
    row->setFixedHeight(mmY(9.8));
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(mmX(3), 0, mmX(3), 0);
    layout->setSpacing(mmX(4));
    layout->addWidget(createText(name, 9, QFont::Medium));
    layout->addWidget(slider); // without a decoration it takes the room that is left
    QLabel *value = createText(QString("%1 %").arg(percent), 9, QFont::Medium);
    value->setFixedWidth(mmX(12)); // also for 100 %, so that the slider keeps its length
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    layout->addWidget(value);
    slider->setValue(percent);
    slider->finishSliderConfiguration();
    QObject::connect(slider, &VexoSlider::valueChanged, value,
        [value](int now) { value->setText(QString("%1 %").arg(now)); });
    return row; // hand the slider to forwardSliderEvents() of the list
}

void addTile(QGridLayout *tiles, int index, VexoDesignVectorButton *tile)
{
    tiles->setSpacing(mmX(2));
    tiles->setContentsMargins(mmX(3), mmY(3), mmX(3), mmY(3));
    tiles->addWidget(tile, index / 3, index % 3); // as wide as its column
}

VexoKeyboardButton *addLetterKey(QGridLayout *keys, int index, const QString &letter)
{
    auto *key = new VexoKeyboardButton;
    key->setObjectName(VexoKeyboardButton::STANDARD_KEY_OBJECT_NAME);
    key->setText(letter);
    key->setFixedWidth(mmX(10)); // or a policy that lets it grow
    keys->setSpacing(mmX(1));
    keys->addWidget(key, 0, index);
    return key;
}
