// SPDX-License-Identifier: MIT
#include <Panel>
#include <ScalingInfo>
#include <VexoColors>
#include <VexoFunctionButton>
#include <VexoImageHeadline>
#include <VexoKeyboardButton>
#include <VexoLabeledContainer>
#include <VexoLineEdit>
#include <VexoRuler>
#include <VexoSlider>
#include <VexoVerticalScrollArea>
#include <VexoVerticalScrollContent>

#include <QApplication>
#include <QGridLayout>
#include <QStackedWidget>

using namespace vexo::hox::qt::panel;
using namespace vexo::hox::qt::ui;
using Key = VexoKeyboardButton;
using Row = VexoFunctionButton;

Row *addRow(QLayout *list, const QString &text, Row::VexoFunctionButtonType type)
{
    auto *row = new Row(nullptr, type);
    row->setText(text);
    list->addWidget(row);
    list->addWidget(new VexoRuler);
    return row;
}

// The first page: a list that is flicked with a finger, also where the finger hits the slider.
void addSettings(QStackedWidget *pages)
{
    auto *area = new VexoVerticalScrollArea;
    pages->addWidget(area);
    auto *content = new VexoVerticalScrollContent;
    QLayout *list = content->layout();
    list->addWidget(new VexoImageHeadline(":/generalmenuSvg", { 0, 6 }, "Settings")); // 6 mm high
    list->addWidget(new VexoRuler);
    addRow(list, "Night mode", Row::CheckboxType);
    addRow(list, "Key tone", Row::CheckboxType)->getButtonInstance()->setChecked(true);
    auto *slider = new VexoSlider(Qt::Horizontal);
    slider->setMaximum(100);
    slider->setValue(60);
    auto *brightness = new VexoLabeledContainer(nullptr, slider);
    brightness->setLabelText("Brightness");
    list->addWidget(brightness);
    list->addWidget(new VexoRuler);
    Row *service = addRow(list, "Service", Row::ActionType);
    QObject::connect(service, &Row::clicked, pages, [=] { pages->setCurrentIndex(1); });
    area->setWidget(content);
    area->forwardSliderEvents(slider);
}

Key *addKey(QGridLayout *grid, int place, const QString &text)
{
    auto *key = new Key;
    key->setText(text);
    key->setHeightInMm(11);
    key->setFixedWidth(int(ScalingInfo::inst()->mm2px_X(16)));
    grid->addWidget(key, 1 + place / 3, place % 3);
    return key;
}

// The second page: the right PIN leads back to the first page, a wrong one shakes.
void addPinEntry(QStackedWidget *pages)
{
    auto *page = new QWidget;
    pages->addWidget(page);
    QPalette colors = page->palette();
    colors.setColor(QPalette::Window, VexoColors::C6); // keys stand on grey
    page->setPalette(colors);
    page->setAutoFillBackground(true);
    auto *grid = new QGridLayout(page);
    grid->setAlignment(Qt::AlignCenter);
    grid->setSpacing(int(ScalingInfo::inst()->mm2px_X(1)));
    auto *field = new VexoLineEdit;
    field->setDrawPasswordSecured(true);
    auto *pin = new VexoLabeledContainer(nullptr, field);
    pin->setLabelText("PIN");
    grid->addWidget(pin, 0, 0, 1, 3);
    for (int i = 0; i < 10; ++i) {
        const QString digit = QString::number((i + 1) % 10);
        Key *key = addKey(grid, i < 9 ? i : 10, digit);
        key->setObjectName(Key::STANDARD_KEY_OBJECT_NAME);
        QObject::connect(key, &Key::clicked, field, [=] { field->insert(digit); });
    }
    QObject::connect(addKey(grid, 11, "Clear"), &Key::clicked, field, &QLineEdit::clear);
    QObject::connect(
        addKey(grid, 9, "Back"), &Key::clicked, pages, [=] { pages->setCurrentIndex(0); });
    QObject::connect(field, &VexoLineEdit::textChanged, pages, [=](const QString &text) {
        if (text.size() < 4)
            return;
        field->repaint(); // what was painted last shakes: with the fourth dot
        field->clear();
        if (text == "2026")
            pages->setCurrentIndex(0);
        else
            field->shake(600, 5, 8, false);
    });
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    Panel::setUp(application);
    QStackedWidget pages;
    addSettings(&pages);
    addPinEntry(&pages);
    pages.showFullScreen();
    return application.exec();
}
