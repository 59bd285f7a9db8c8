// SPDX-License-Identifier: MIT
#include "gallery/pages/checkandradiopage.h"

#include "gallery/measures.h"
#include "gallery/widgets/plainbutton.h"

#include <VexoCheckBox>
#include <VexoColors>
#include <VexoRadioButton>

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

using namespace vexo::hox::qt::ui;

namespace {

enum State { Off = 0, On = 1, Disabled = 2 };

void add(QLayout *column, QAbstractButton *button, const QString &text, int state)
{
    button->setText(text);
    button->setChecked(state & On);
    button->setEnabled(!(state & Disabled));
    column->addWidget(button);
}

// Radio buttons below one parent exclude each other, so each column has one of its own.
template <typename CheckBox, typename RadioButton>
QWidget *createColumn(const QString &heading)
{
    auto *parent = new QWidget;
    auto *column = new QVBoxLayout(parent);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(mmY(2));
    auto *title = new QLabel(heading);
    title->setFont(ptFont(7, QFont::Normal));
    column->addWidget(title);
    add(column, new CheckBox, "Night mode", On);
    add(column, new CheckBox, "Key tone", Off);
    add(column, new CheckBox, "Disabled", On | Disabled);
    column->addSpacing(mmY(3));
    add(column, new RadioButton, "Celsius", On);
    add(column, new RadioButton, "Fahrenheit", Off);
    add(column, new RadioButton, "Disabled", Disabled);
    column->addStretch();
    return parent;
}

QString parentSheet()
{
    const QString sheet = "QCheckBox, QRadioButton { color: %1; }"
                          "QCheckBox:disabled, QRadioButton:disabled { color: %2; }"
                          "QCheckBox::indicator { width: %3px; height: %5px; }"
                          "QRadioButton::indicator { width: %4px; height: %5px; }";
    return sheet.arg(VexoColors::C9.name(), VexoColors::C6.name())
        .arg(mmX(12))
        .arg(mmX(7))
        .arg(mmY(7));
}

} // namespace

CheckAndRadioPage::CheckAndRadioPage()
    : Page("Check and radio",
        "They change at the release, and only if the finger has stayed: swipe across them, and the "
        "page scrolls while nothing is ticked.",
        Rows)
{
    addComparison();
    addParentSheet();
}

void CheckAndRadioPage::addComparison()
{
    addSection("With and without stylesheet");
    auto *columns = new QHBoxLayout;
    columns->setSpacing(mmX(6));
    columns->addWidget(createColumn<VexoCheckBox, VexoRadioButton>("With the panel's sheets"), 1);
    columns->addWidget(
        createColumn<PlainCheckBox<VexoCheckBox>, PlainRadioButton<VexoRadioButton>>("Without"), 1);
    addBlock(columns);
}

void CheckAndRadioPage::addParentSheet()
{
    addSection("A sheet on the parent");
    addBlock(createText("A sheet of the application on any parent gives the indicators other "
                        "sizes and the texts other colours."));
    QWidget *column = createColumn<VexoCheckBox, VexoRadioButton>("12 x 7 and 7 x 7 mm");
    column->setStyleSheet(parentSheet());
    addBlock(column);
}
