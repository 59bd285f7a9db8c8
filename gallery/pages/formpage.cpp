// SPDX-License-Identifier: MIT
#include "gallery/pages/formpage.h"

#include "gallery/measures.h"
#include "gallery/widgets/tilelayout.h"

#include <VexoCheckBox>
#include <VexoColors>
#include <VexoFunctionButton>
#include <VexoLabel>
#include <VexoLabeledContainer>
#include <VexoLineEdit>
#include <VexoNumericButton>
#include <VexoPushButton>
#include <VexoSlider>
#include <VexoSliderDecoration>

#include <QLabel>
#include <QVBoxLayout>

using namespace vexo::hox::qt::ui;

namespace {

using Style = VexoSliderDecoration::SliderDecorationStyle;

VexoLabeledContainer *createContainer(const QString &caption, QWidget *payload)
{
    auto *container = new VexoLabeledContainer(nullptr, payload);
    container->setLabelText(caption);
    return container;
}

VexoLabeledContainer *addContainer(TileLayout *tiles, const QString &caption, QWidget *payload)
{
    VexoLabeledContainer *container = createContainer(caption, payload);
    tiles->addWidget(container);
    return container;
}

VexoLabeledContainer *addWithButton(
    TileLayout *tiles, const QString &caption, QWidget *payload, VexoPushButton *button)
{
    VexoLabeledContainer *container = createContainer(caption, payload);
    auto *tile = new QVBoxLayout;
    tile->setSpacing(0);
    tile->addWidget(container);
    tile->addWidget(button);
    tiles->addLayout(tile);
    return container;
}

VexoLineEdit *createField(const QString &text)
{
    auto *field = new VexoLineEdit;
    field->setText(text);
    return field;
}

VexoSliderDecoration *createSlider(const QString &name, Style style, int value)
{
    auto *slider = new VexoSlider(Qt::Horizontal);
    slider->setMaximum(100);
    slider->setTickInterval(5);
    slider->setValue(value);
    slider->setAccessibleName(name);
    auto *decoration = new VexoSliderDecoration(nullptr, style, slider);
    decoration->setScaleText({ "0", "25", "50", "75", "100" });
    return decoration;
}

VexoNumericButton *createStepper()
{
    auto *stepper = new VexoNumericButton;
    stepper->setMaximum(60);
    stepper->setStepSize(5);
    stepper->setValue(15);
    return stepper;
}

VexoFunctionButton *createSwitch(const QString &text)
{
    auto *row = new VexoFunctionButton(nullptr, VexoFunctionButton::CheckboxType);
    row->setText(text);
    row->setMmIndent(0); // the container has margins
    row->setMmRightSpacer(0);
    row->getButtonInstance()->setChecked(true);
    return row;
}

VexoPushButton *createButton(const QString &text)
{
    auto *button = new VexoPushButton;
    button->setText(text);
    return button;
}

} // namespace

FormPage::FormPage()
    : Page("Form",
        "Each field stands in a VexoLabeledContainer, which gives it a caption, margins and a "
        "fixed height, so that fields of all kinds line up.")
{
    addTexts();
    addSliders();
    addControls();
    addReplaced();
    addBuddy();
}

void FormPage::addTexts()
{
    TileLayout *tiles = addTiles("Device", 48);
    addContainer(tiles, "Name", createField("Front door"));
    addContainer(tiles, "Network address", createField("192.168.0.24"));
    auto *status = new VexoLabel("Connected");
    status->setBackgroundColor(VexoColors::C1);
    addContainer(tiles, "Status", status);
    addContainer(tiles, "Remark", new QLabel("Restarts on Sunday night. Calls are put through."));
}

void FormPage::addSliders()
{
    TileLayout *tiles = addTiles("Display and sound", 71);
    VexoSliderDecoration *brightness
        = createSlider("Brightness", Style::HorizontalWithoutScale, 60);
    brightness->setMinImage(
        ":/widgetimages/Icons_Round_Small/RoundButton_S_Minus_Active.svg", 0, 4);
    brightness->setMaxImage(":/widgetimages/Icons_Round_Small/RoundButton_S_Plus_Active.svg", 0, 4);
    addContainer(tiles, "Brightness", brightness)->setMmHeight(25); // as the one with a scale
    addContainer(tiles, "Volume, %", createSlider("Volume, %", Style::HorizontalWithScale, 40));
}

void FormPage::addControls()
{
    TileLayout *tiles = addTiles("Standby", 48);
    addContainer(tiles, "Standby after, min", createStepper());
    addContainer(tiles, "At night", createSwitch("Dark screen"));
    VexoPushButton *restart = createButton("Restart");
    restart->setMmMargin(QSizeF(0.2, 0.2)); // half its line reaches over its edge
    addContainer(tiles, "Service", restart);
}

void FormPage::addReplaced()
{
    TileLayout *tiles = addTiles("Another payload, and none", 48);
    addSwap(tiles);
    addRemoval(tiles);
}

void FormPage::addSwap(TileLayout *tiles)
{
    auto *field = createField("192.168.0.1");
    auto *text = new QLabel("Assigned by the network", this);
    text->hide();
    Button *button = createButton("Automatic");
    Container *container = addWithButton(tiles, "Gateway", field, button);
    connect(button, &Button::clicked, this, [=] {
        const bool is_automatic = text->isHidden();
        QWidget *const old = is_automatic ? static_cast<QWidget *>(field) : text;
        QWidget *const next = is_automatic ? static_cast<QWidget *>(text) : field;
        container->swapWidget(old, next);
        next->show();
        putAside(old);
        button->setText(is_automatic ? "By hand" : "Automatic");
    });
}

void FormPage::addRemoval(TileLayout *tiles)
{
    auto *field = createField("Ring twice");
    Button *button = createButton("Remove");
    Container *container = addWithButton(tiles, "Note", field, button);
    connect(button, &Button::clicked, this, [=] {
        const bool is_there = !field->isHidden();
        if (is_there) {
            container->removeWidget();
            putAside(field);
        } else {
            container->swapWidget(nullptr, field);
            field->show();
        }
        button->setText(is_there ? "Put back" : "Remove");
    });
}

void FormPage::addBuddy()
{
    addSection("Visible buddy");
    auto *visible = new VexoCheckBox;
    visible->setText("Use a proxy; its port is the buddy of its address");
    visible->setChecked(true);
    addBlock(visible);
    TileLayout *tiles = addTiles(48);
    Container *address = addContainer(tiles, "Proxy", createField("proxy.example"));
    Container *port = addContainer(tiles, "Port", createField("8080"));
    address->addVisibleBuddy(port);
    port->show();
    connect(visible, &VexoCheckBox::toggled, address, &Container::setVisible);
}

// The container has let go of it: the page owns it, out of sight.
void FormPage::putAside(QWidget *payload)
{
    payload->setParent(this);
    payload->hide();
}
