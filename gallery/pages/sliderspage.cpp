// SPDX-License-Identifier: MIT
#include "gallery/pages/sliderspage.h"

#include "gallery/measures.h"
#include "gallery/widgets/plainslider.h"
#include "gallery/widgets/tilelayout.h"

#include <VexoColors>
#include <VexoSlider>
#include <VexoSliderDecoration>

#include <QLabel>
#include <QMetaEnum>

using namespace vexo::hox::qt::ui;

namespace {

using Decoration = VexoSliderDecoration;

const char *const minus_image = ":/widgetimages/Icons_Round_Small/RoundButton_S_Minus_Active.svg";
const char *const plus_image = ":/widgetimages/Icons_Round_Small/RoundButton_S_Plus_Active.svg";

bool isUpright(Decoration::SliderDecorationStyle style)
{
    return style == Decoration::VerticalWithoutScale || style == Decoration::VerticalWithScale;
}

VexoSlider *createSlider(
    int maximum, int step, int value, Qt::Orientation orientation = Qt::Horizontal)
{
    auto *slider = new VexoSlider(orientation);
    slider->setMinimum(0);
    slider->setMaximum(maximum);
    slider->setTickInterval(step);
    slider->setValue(value);
    slider->setAccessibleName("Level");
    return slider;
}

Decoration *createDecoration(Decoration::SliderDecorationStyle style)
{
    const bool is_upright = isUpright(style);
    auto *slider = createSlider(100, 1, 60, is_upright ? Qt::Vertical : Qt::Horizontal);
    auto *decoration = new Decoration(nullptr, style, slider);
    // The first label of an upright scale is at the top, where the maximum is.
    decoration->setScaleText(
        is_upright ? QStringList{ "100", "50", "0" } : QStringList{ "0", "50", "100" });
    return decoration;
}

void setImages(Decoration *decoration, double height_mm)
{
    decoration->setMinImage(minus_image, 0, height_mm);
    decoration->setMaxImage(plus_image, 0, height_mm);
}

// As wide as it needs, at the left of its tile.
QLayout *createLeft(QWidget *widget, QLayout *tile)
{
    tile->setAlignment(widget, Qt::AlignLeft);
    return tile;
}

} // namespace

SlidersPage::SlidersPage()
    : Page("Sliders",
        "Grab a handle and drag it. A touch beside the handle moves nothing: it is handed on, so "
        "that a list with sliders in it can be swiped.")
{
    addStyles();
    addSteps();
    addUnits();
    addImages();
    addLooks();
}

void SlidersPage::addStyles()
{
    const auto add = [](TileLayout *tiles, Decoration::SliderDecorationStyle style) {
        Decoration *decoration = createDecoration(style);
        setImages(decoration, 4);
        const QString name = QMetaEnum::fromType<decltype(style)>().valueToKey(style);
        tiles->addLayout(createLeft(decoration, createCaptioned(decoration, name)));
    };
    TileLayout *level = addTiles("Level", 64, { 4, 6 });
    add(level, Decoration::HorizontalWithoutScale);
    add(level, Decoration::HorizontalWithScale);
    TileLayout *upright = addTiles("Upright", 34, { 4, 6 });
    add(upright, Decoration::VerticalWithoutScale);
    add(upright, Decoration::VerticalWithScale);
}

void SlidersPage::addSteps()
{
    TileLayout *tiles = addTiles("Steps", 64, { 4, 6 });
    QLabel *signal = createText("The last signal appears here.", 7, QFont::Normal);
    for (const int step : { 1, 10, 25 }) {
        VexoSlider *slider = createSlider(100, step, 50);
        connect(slider, &VexoSlider::valueChanged, signal,
            [=](int value) { signal->setText(QString("valueChanged(%1)").arg(value)); });
        connect(slider, &VexoSlider::forwardPressEvent, signal,
            [=] { signal->setText("forwardPressEvent(): beside the handle"); });
        auto *decoration = new Decoration(nullptr, Decoration::HorizontalWithoutScale, slider);
        const QString caption = QString("0 to 100 by %1").arg(step);
        tiles->addLayout(createLeft(decoration, createCaptioned(decoration, caption)));
    }
    tiles->addWidget(signal);
}

void SlidersPage::addUnits()
{
    TileLayout *tiles = addTiles("Unit", 64, { 4, 6 });
    for (const char *unit : { " %", " °C" }) {
        Decoration *decoration = createDecoration(Decoration::HorizontalWithScale);
        decoration->setMinImage(minus_image, 0, 4);
        decoration->setSliderUnit(QString::fromUtf8(unit));
        tiles->addLayout(createLeft(decoration,
            createCaptioned(decoration, "in the place of the maximum image, with a scale")));
    }
}

void SlidersPage::addImages()
{
    TileLayout *tiles = addTiles("End images", 64, { 4, 6 });
    for (const double height_mm : { 4.0, 5.4, 4.7 }) {
        Decoration *decoration = createDecoration(Decoration::HorizontalWithoutScale);
        setImages(decoration, height_mm);
        // The library places those of exactly 4.7 mm farther off and higher.
        const QString caption = QString("%1 mm").arg(height_mm);
        tiles->addLayout(createLeft(decoration, createCaptioned(decoration, caption)));
    }
}

void SlidersPage::addLooks()
{
    TileLayout *tiles = addTiles("Look", 64, { 4, 6 });
    VexoSlider *slider = createSlider(100, 1, 60);
    auto *decoration = new Decoration(nullptr, Decoration::HorizontalWithoutScale, slider);
    auto *plain = new PlainSlider(slider);
    plain->setFixedSize(slider->size());
    auto *disabled = createDecoration(Decoration::HorizontalWithoutScale);
    disabled->setEnabled(false);
    tiles->addLayout(createLeft(
        decoration, createCaptioned(decoration, "As Panel::setUp() draws it, in millimetres")));
    tiles->addLayout(
        createLeft(plain, createCaptioned(plain, "The same without the sheets, follows it")));
    tiles->addLayout(createLeft(disabled, createCaptioned(disabled, "Disabled")));
}
