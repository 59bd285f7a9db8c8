// SPDX-License-Identifier: MIT
#include <Panel>
#include <VexoFunctionButton>
#include <VexoLabeledContainer>
#include <VexoNumericButton>
#include <VexoRuler>
#include <VexoSlider>
#include <VexoVerticalScrollArea>
#include <VexoVerticalScrollContent>

#include <QApplication>
#include <QVBoxLayout>

using namespace vexo::hox::qt::ui;
using namespace vexo::hox::qt::panel;

namespace {

void addRow(QLayout *list, QWidget *row)
{
    list->addWidget(row);
    list->addWidget(new VexoRuler(nullptr, VexoRuler::MainUnderButton));
}

void addLabelled(QLayout *list, const QString &text, QWidget *widget)
{
    auto *row = new VexoLabeledContainer(nullptr, widget);
    row->setLabelText(text);
    addRow(list, row);
}

void addSwitch(QLayout *list, const QString &text, bool is_on)
{
    auto *row = new VexoFunctionButton;
    row->setText(text);
    row->getButtonInstance()->setChecked(is_on);
    addRow(list, row);
}

VexoSlider *createBrightness()
{
    auto *slider = new VexoSlider(Qt::Horizontal);
    slider->setMaximum(100);
    slider->setValue(60);
    return slider;
}

VexoNumericButton *createDelay()
{
    auto *stepper = new VexoNumericButton;
    stepper->setMinimum(1);
    stepper->setMaximum(30);
    stepper->setValue(5);
    return stepper;
}

// A list that is flicked with a finger, also where the finger hits the slider. Returns the rows.
QLayout *addSettings(QLayout *place)
{
    auto *area = new VexoVerticalScrollArea;
    place->addWidget(area); // first, so that its rows are styled only once
    auto *content = new VexoVerticalScrollContent;
    QLayout *list = content->layout();
    addSwitch(list, "Key tone", true);
    addSwitch(list, "Wake at a touch", true);
    VexoSlider *brightness = createBrightness();
    addLabelled(list, "Brightness", brightness);
    addLabelled(list, "Dark after, minutes", createDelay());
    for (const char *text : { "Weather", "News", "Calls", "Front door" })
        addSwitch(list, text, false);
    area->setWidget(content);
    area->forwardSliderEvents(brightness);
    return list;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    Panel::setUp(application);
    QWidget window;
    auto *column = new QVBoxLayout(&window);
    column->setContentsMargins(0, 0, 0, 0);
    addSettings(column);
    window.showFullScreen();
    return application.exec();
}
