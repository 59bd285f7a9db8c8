// SPDX-License-Identifier: MIT
#include "settingsscreen.h"

#include <PageStack>
#include <PanelDialog>
#include <PanelDimmer>
#include <ScalingInfo>
#include <VexoFunctionButton>
#include <VexoIconButton>
#include <VexoNumericButton>
#include <VexoPushButton>
#include <VexoSlider>
#include <VexoVerticalScrollArea>

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>

using namespace vexo::hox::qt::panel;
using namespace vexo::hox::qt::ui;

namespace {

const int default_darkness = 70; // percent
const int default_delay_s = 120;
const double stepper_in_mm = 36;
const float box_gap_in_mm = 0.6F; // a box ends 2.4 mm before its widget, so 3 mm before the edge

// All sliders begin below each other, and leave half of a row to its text.
double sliderInMm()
{
    return qMin(70.0, ScalingInfo::inst()->m_size_mm.width() / 2);
}

} // namespace

SettingsScreen::SettingsScreen(PanelWindow *panel)
    : Screen(panel)
{
    addHead([] { return tr("Settings"); });
    m_list = addList();
    addLook();
    addLanguages();
    addDimming();
    addDelay();
    addScreens();
    m_list->addSpacing(mmY(4));
}

void SettingsScreen::addHeading(const Text &text)
{
    QLabel *heading = createText(7, QFont::Normal);
    heading->setFixedHeight(mmY(8));
    heading->setAlignment(Qt::AlignBottom);
    heading->setContentsMargins(mmX(3), 0, mmX(3), mmY(1)); // 3 mm is the indent of the rows
    m_list->addWidget(heading);
    m_list->addWidget(createLine());
    follow([=] {
        heading->setText(text());
        setInk(heading, look().faint);
    });
}

void SettingsScreen::addRow(QWidget *row)
{
    m_list->addWidget(row);
    m_list->addWidget(createLine());
}

VexoFunctionButton *SettingsScreen::addSwitch(const Text &text, bool is_on)
{
    auto *row = new Row(nullptr, Row::CheckboxType);
    row->getButtonInstance()->setChecked(is_on);
    row->setMmRightSpacer(box_gap_in_mm);
    addRow(row);
    follow([=] {
        row->setText(text());
        dressRow(row);
    });
    return row;
}

QWidget *SettingsScreen::createLabelled(const Text &text, QWidget *control, double mm)
{
    auto *row = new QWidget;
    row->setFixedHeight(mmY(9.8));
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(mmX(3), 0, mmX(3), 0);
    layout->setSpacing(mmX(3));
    QLabel *label = createText(9);
    layout->addWidget(label, 1);
    control->setFixedWidth(mmX(mm));
    layout->addWidget(control);
    follow([=] {
        setGround(row, look().surface);
        label->setText(text());
        control->setAccessibleName(text());
    });
    return row;
}

VexoSlider *SettingsScreen::addSlider(
    const Text &text, const QString &unit, int step, int maximum, int value)
{
    auto *slider = new VexoSlider(Qt::Horizontal);
    slider->setMaximum(maximum);
    slider->setTickInterval(step);
    slider->setValue(value);
    slider->finishSliderConfiguration();
    auto *both = new QWidget;
    auto *layout = new QHBoxLayout(both);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(mmX(3));
    layout->addWidget(slider, 1);
    QLabel *number = createText(9);
    number->setFixedWidth(mmX(15)); // the slider keeps its length
    number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    number->setText(QString("%1 %2").arg(value).arg(unit));
    layout->addWidget(number);
    addRow(createLabelled(text, both, sliderInMm()));
    follow([=] { slider->setAccessibleName(text()); });
    connect(slider, &VexoSlider::valueChanged, number,
        [=](int now) { number->setText(QString("%1 %2").arg(now).arg(unit)); });
    findChild<VexoVerticalScrollArea *>()->forwardSliderEvents(slider);
    return slider;
}

void SettingsScreen::addLook()
{
    addHeading([] { return tr("Display"); });
    const Row *night = addSwitch([] { return tr("Night look"); }, panel()->isNight());
    connect(night->getButtonInstance(), &QAbstractButton::toggled, panel(), &PanelWindow::setNight);
}

// Each language is called what its speakers call it.
void SettingsScreen::addLanguages()
{
    addHeading([] { return tr("Language"); });
    auto *group = new QButtonGroup(this);
    const auto add = [=](const QString &code, const QString &name) {
        auto *row = new Row(nullptr, Row::RadiobuttonType);
        row->setText(name);
        row->setMmRightSpacer(box_gap_in_mm);
        group->addButton(row->getButtonInstance());
        row->getButtonInstance()->setChecked(panel()->language() == code);
        addRow(row);
        connect(row->getButtonInstance(), &QAbstractButton::clicked, panel(),
            [=] { panel()->setLanguage(code); });
        follow([=] { dressRow(row); });
    };
    add("de", "Deutsch");
    add("en", "English");
}

void SettingsScreen::dressRow(Row *row) const
{
    row->setTextColor(look().ink);
    row->setTextClickedColor(look().pressed_ink);
    row->setArrowColor(look().faint);
    row->setArrowClickedColor(look().pressed_ink);
    row->setBackgroundColor(look().surface);
    row->setBackgroundClickedColor(look().pressed);
}

VexoFunctionButton *SettingsScreen::addWay(const Text &text)
{
    auto *row = new Row(nullptr, Row::ActionType);
    addRow(row);
    follow([=] {
        row->setText(text());
        dressRow(row);
    });
    return row;
}

void SettingsScreen::addDimming()
{
    addHeading([] { return tr("When nobody touches the panel"); });
    PanelDimmer *dimmer = panel()->dimmer();
    Slider *slider = addSlider([] { return tr("Dim by"); }, "%", 10, 100, dimmer->darkness());
    slider->setObjectName("darkness");
    connect(slider, &VexoSlider::valueChanged, dimmer, &PanelDimmer::setDarkness);
}

void SettingsScreen::addDelay()
{
    PanelDimmer *dimmer = panel()->dimmer();
    auto *stepper = new VexoNumericButton;
    stepper->setMaximum(600);
    stepper->setMinimum(30);
    stepper->setStepSize(30);
    stepper->setValue(dimmer->seconds());
    stepper->setEdgeInMm(0);
    addRow(createLabelled([] { return tr("After, seconds"); }, stepper, stepper_in_mm));
    connect(stepper, &VexoNumericButton::valueChanged, dimmer, &PanelDimmer::setSeconds);
    follow([=] {
        stepper->setTextColor(look().ink);
        const char *const names[] = { "decreaseButton", "increaseButton" };
        for (const char *name : names) {
            const bool is_minus = name == names[0];
            dress(stepper->findChild<VexoIconButton *>(name), look(), is_minus ? "minus" : "plus");
        }
    });
}

void SettingsScreen::addScreens()
{
    addHeading([] { return tr("Screens"); });
    PageStack *stack = panel()->stack();
    Slider *slider = addSlider([] { return tr("Slide for"); }, "ms", 50, 400, stack->slideMs());
    connect(slider, &VexoSlider::valueChanged, stack, &PageStack::setSlideMs);
    Row *dim = addWay([] { return tr("Dim now"); });
    connect(dim, &Row::clicked, panel()->dimmer(), &PanelDimmer::dim);
    Row *reset = addWay([] { return tr("Reset to factory settings"); });
    connect(reset, &Row::clicked, this, &SettingsScreen::askForReset);
}

void SettingsScreen::askForReset()
{
    PanelDialog *question = panel()->ask(tr("Reset to factory settings?"));
    question->setExplanation(tr("Look and dimming go back to what they were on the first day."));
    question->addButton(tr("Cancel"));
    panel()->addMainButton(question, tr("Reset"));
    connect(question, &PanelDialog::answered, panel(), [panel = panel()](int button) {
        if (button != 1)
            return;
        panel->setNight(false);
        panel->dimmer()->setDarkness(default_darkness);
        panel->dimmer()->setSeconds(default_delay_s);
        panel->stack()->setSlideMs(0);
        panel->stack()->home();
        panel->tell(tr("Factory settings restored"));
    });
    question->open();
}
