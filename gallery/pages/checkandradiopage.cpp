#include "gallery/pages/checkandradiopage.h"

#include "gallery/measures.h"
#include "gallery/widgets/mmsheets.h"
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
    addBlock(createText("The panel's sheets draw the indicators in pixels. A sheet of the "
                        "application on any parent gives them millimetres and other colours."));
    QWidget *column = createColumn<VexoCheckBox, VexoRadioButton>("12 x 7 and 7 x 7 mm");
    column->setStyleSheet(indicatorSheet(VexoColors::C9));
    addBlock(column);
}
