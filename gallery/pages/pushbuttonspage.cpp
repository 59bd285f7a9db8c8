// SPDX-License-Identifier: MIT
#include "gallery/pages/pushbuttonspage.h"

#include "gallery/measures.h"
#include "gallery/widgets/tilelayout.h"

#include <VexoCheckBox>
#include <VexoColors>
#include <VexoPushButton>

#include <QLabel>

using namespace vexo::hox::qt::ui;

namespace {

const double width_in_mm = 44;

// Its image follows the right end: by itself the button places it only when the image is set.
class RightImageButton : public VexoPushButton
{
protected:
    void resizeEvent(QResizeEvent *event) override
    {
        VexoPushButton::resizeEvent(event);
        setIconDimension();
    }
};

void setUpButton(VexoPushButton *button, const QString &text)
{
    button->setText(text);
    button->setMinimumWidth(mmX(width_in_mm)); // else a long text widens it
}

VexoPushButton *createButton(const QString &text)
{
    auto *button = new VexoPushButton;
    setUpButton(button, text);
    return button;
}

void setTick(VexoPushButton *button)
{
    button->setSvgImage(":/widgetimages/RoundButton_S_Tick_Active.svg",
        ":/widgetimages/RoundButton_S_Tick_Pressed.svg",
        ":/widgetimages/RoundButton_S_Tick_Inactive.svg");
}

VexoPushButton *createTickButton(const QString &text)
{
    VexoPushButton *button = createButton(text);
    setTick(button);
    return button;
}

VexoPushButton *createRightImageButton(const QString &text, Qt::Alignment alignment)
{
    auto *button = new RightImageButton;
    setUpButton(button, text);
    button->setAlignImageRight(true);
    button->setTextAlignment(alignment);
    button->setTextMmMarginX(4);
    button->setSvgImage(":/arrowListRightSvg", Standard);
    return button;
}

VexoPushButton *createTwoLineButton(const QString &text)
{
    VexoPushButton *button = createButton(text);
    button->setPtFontSize(7);
    button->setTextMmMarginX(2);
    return button;
}

} // namespace

PushButtonsPage::PushButtonsPage()
    : Page("Push buttons",
        "A label in a pill, with an image, a second text or a second line. The height follows from "
        "radius and margin: 12 mm, with an image 10 mm.")
{
    addOutlines();
    addImages();
    addHiddenImage();
    addTexts();
    addStates();
    addColors();
}

void PushButtonsPage::addOutlines()
{
    TileLayout *tiles = addTiles("Outline", width_in_mm);
    tiles->addLayout(createCaptioned(createButton("Continue"), "outline"));
    VexoPushButton *plain = createButton("Continue");
    plain->setDrawButtonBorder(false);
    tiles->addLayout(createCaptioned(plain, "no outline"));
}

void PushButtonsPage::addImages()
{
    TileLayout *tiles = addTiles("Image", width_in_mm);
    tiles->addLayout(createCaptioned(createTickButton("Continue"), "outline and image"));
    VexoPushButton *plain = createTickButton("Continue");
    plain->setDrawButtonBorder(false);
    tiles->addLayout(createCaptioned(plain, "no outline, image"));
    tiles->addLayout(createCaptioned(
        createRightImageButton("Network", Qt::AlignLeft | Qt::AlignVCenter), "image at the right"));
    VexoPushButton *text = createTickButton("Network");
    text->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    text->setTextMmMarginX(4);
    tiles->addLayout(createCaptioned(text, "text at the right"));
}

void PushButtonsPage::addHiddenImage()
{
    TileLayout *tiles = addTiles("Hidden image", width_in_mm);
    VexoPushButton *button = createTickButton("Continue");
    button->hideImage(true);
    auto *hidden = new VexoCheckBox;
    hidden->setText("Hide the image");
    hidden->setChecked(true);
    connect(hidden, &VexoCheckBox::toggled, button, &VexoPushButton::hideImage);
    tiles->addWidget(button);
    tiles->addWidget(hidden);
}

void PushButtonsPage::addTexts()
{
    TileLayout *tiles = addTiles("Second text, second line", width_in_mm);
    VexoPushButton *second = createButton("Brightness");
    second->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    second->setTextMmMarginX(3);
    second->setRightSideText(QString::fromUtf8("80\u00a0%"));
    tiles->addLayout(createCaptioned(second, "second text"));
    const QString label = "Restore the settings of the last successful start";
    tiles->addLayout(
        createCaptioned(createTwoLineButton(label), "two lines, 7 pt, cut after any character"));
    VexoPushButton *both = createTwoLineButton("Brightness of the display at night");
    both->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    both->setRightSideText(QString::fromUtf8("20\u00a0%"));
    tiles->addLayout(createCaptioned(both, "two lines, second text"));
    tiles->addLayout(createCaptioned(createTwoLineButton(QString::fromUtf8("恢复上次成功启动时的"
                                                                           "全部显示和网络设置"
                                                                           "以及语言选择")),
        "Chinese"));
}

void PushButtonsPage::addStates()
{
    TileLayout *tiles = addTiles("States", width_in_mm);
    for (const bool has_image : { false, true }) {
        const QString end = has_image ? ", image" : "";
        VexoPushButton *checked = createButton("Mute");
        checked->setCheckable(true);
        checked->setChecked(true);
        VexoPushButton *disabled = createButton("Continue");
        disabled->setEnabled(false);
        for (VexoPushButton *button : { checked, disabled }) {
            if (has_image) {
                setTick(button);
                button->setMmMargin(VexoPushButton::STANDARD_MARGIN_IN_MM); // all of one height
            }
        }
        tiles->addLayout(createCaptioned(checked, "checked, touch it to toggle" + end));
        tiles->addLayout(createCaptioned(disabled, "disabled" + end));
    }
}

void PushButtonsPage::addColors()
{
    TileLayout *tiles = addTiles("Colours and measures", width_in_mm);
    VexoPushButton *stop = createButton("Stop");
    stop->setBackgroundColor(VexoColors::C9);
    stop->setBackgroundClickedColor(VexoColors::C4);
    stop->setTextColor(VexoColors::C0);
    stop->setPenColor(VexoColors::C9);
    tiles->addLayout(createCaptioned(stop, "red"));
    VexoPushButton *large = createButton("Start");
    large->setMmRadius(4.5);
    large->setMmMargin(QSizeF(1, 1.5));
    large->setMmPenLine(0.6);
    large->setPenColor(VexoColors::C7);
    large->setPtFontSize(13);
    tiles->addLayout(createCaptioned(large, "radius 4.5, margin 1 x 1.5, line 0.6 mm"));
}
