// SPDX-License-Identifier: MIT
#include "gallery/pages/rowspage.h"

#include "gallery/measures.h"
#include "gallery/widgets/rowgroup.h"

#include <CachedVectorIcon>
#include <VexoColors>
#include <VexoFunctionButton>
#include <VexoHorizontalTextIconButton>

#include <QButtonGroup>
#include <QLabel>

using namespace vexo::hox::qt::ui;

namespace {

using Row = VexoFunctionButton;

Row *addRow(RowGroup *list, Row::VexoFunctionButtonType type, const QString &text)
{
    auto *row = new Row(list, type);
    row->setText(text);
    list->addRow(row);
    return row;
}

QPixmap renderArrow(const QString &color)
{
    const QString path = ":/widgetimages/VexoIconGeneralArrowListRight_44px_%1.svg";
    return CachedVectorIcon(path.arg(color), QSizeF(0, 6)).toPixmap();
}

VexoHorizontalTextIconButton *createTextIconRow(const QString &left, const QString &right)
{
    auto *row = new VexoHorizontalTextIconButton;
    row->setLeftSideText(left);
    row->setRightSideText(right);
    row->setPtFontSize(9);
    row->setMmIndent(3);
    row->setLeftSideTextPercentWidth(62);
    row->setRightSideTextPercentWidth(24);
    row->setDefaultImage(renderArrow("C0"));
    return row;
}

void setLightColors(VexoHorizontalTextIconButton *row)
{
    row->setDefaultTextColor(VexoColors::C3);
    row->setDefaultBackgroundColor(VexoColors::C1);
    row->setDefaultImage(renderArrow("C3"));
    row->setClickedTextColor(VexoColors::C0);
    row->setClickedBackgroundColor(VexoColors::C4);
    row->setClickedImage(renderArrow("C0"));
    row->setInactiveTextColor(VexoColors::C6);
    row->setInactiveBackgroundColor(VexoColors::C1);
    row->setInactiveImage(renderArrow("RGB220"));
}

} // namespace

RowsPage::RowsPage()
    : Page("Rows",
        "Full-width rows of 9.8 mm. Swipe over them with a finger or with the mouse: the page "
        "scrolls, and no row clicks.",
        Rows)
{
    addCheckBoxes();
    addActions();
    addRadioButtons();
    addFullRowChoices();
    addAgreements();
    addLongTexts();
    addTextAndIcon();
}

void RowsPage::addCheckBoxes()
{
    addSection("Check boxes");
    auto *list = new RowGroup;
    addRow(list, Row::CheckboxType, "Night mode")->getButtonInstance()->setChecked(true);
    addRow(list, Row::CheckboxType, "Key tone");
    addRow(list, Row::CheckboxType, "Disabled")->setEnabled(false);
    addBlock(list);
}

void RowsPage::addActions()
{
    addSection("Actions");
    auto *list = new RowGroup;
    QLabel *signal = createText("The last click appears here.", 7, QFont::Normal);
    for (const char *text : { "Network", "Software update" }) {
        Row *row = addRow(list, Row::ActionType, text);
        connect(row, &Row::clicked, signal, [=] { signal->setText(row->text() + ": clicked()"); });
    }
    addRow(list, Row::ActionType, "Disabled")->setEnabled(false);
    addBlock(list);
    addBlock(signal);
}

void RowsPage::addRadioButtons()
{
    addSection("Radio buttons, put into a group");
    auto *list = new RowGroup;
    auto *group = new QButtonGroup(list);
    for (const char *text : { "Celsius", "Fahrenheit", "Disabled" })
        group->addButton(addRow(list, Row::RadiobuttonType, text)->getButtonInstance());
    group->buttons().constFirst()->setChecked(true);
    group->buttons().constLast()->parentWidget()->setEnabled(false);
    addBlock(list);
}

// They exclude each other, and each auto-exclusive button anywhere below their parent: so it is
// one of their own.
void RowsPage::addFullRowChoices()
{
    addSection("Full-row radio choices, below a parent of their own");
    auto *list = new RowGroup;
    addRow(list, Row::FullsizeRadiobuttonType, "Deutsch");
    addRow(list, Row::FullsizeRadiobuttonType, "English")->setChecked(true);
    addRow(list, Row::FullsizeRadiobuttonType, QString::fromUtf8("Français"));
    addRow(list, Row::FullsizeRadiobuttonType, "Disabled")->setEnabled(false);
    addBlock(list);
}

void RowsPage::addAgreements()
{
    addSection("Agreements: a tick cannot be taken back");
    auto *list = new RowGroup;
    addRow(list, Row::TickAgreementType, "I agree to the terms of use");
    Row *ticked = addRow(list, Row::TickAgreementType, "Ticked and disabled");
    ticked->getButtonInstance()->setChecked(true);
    ticked->setEnabled(false);
    addBlock(list);
}

void RowsPage::addLongTexts()
{
    addSection("Long texts and other scripts");
    auto *list = new RowGroup;
    addRow(list, Row::ActionType,
        QString::fromUtf8("Displayhelligkeitsanpassungsgeschwindigkeitseinstellung"));
    addRow(list, Row::CheckboxType,
        QString::fromUtf8("Fahrzeugdiagnoseschnittstelle automatisch an die Gegenstelle anpassen"));
    addRow(list, Row::CheckboxType, QString::fromUtf8("夜间自动降低屏幕亮度，并关闭按键音"));
    addRow(list, Row::ActionType, QString::fromUtf8("استعادة إعدادات المصنع"));
    addRow(list, Row::RadiobuttonType, "First line\nSecond line");
    addBlock(list);
}

void RowsPage::addTextAndIcon()
{
    addSection("Text and icon");
    auto *list = new RowGroup;
    VexoHorizontalTextIconButton *light = createTextIconRow("Brightness", "80 %");
    setLightColors(light);
    list->addRow(light);
    VexoHorizontalTextIconButton *disabled = createTextIconRow("Disabled", "off");
    setLightColors(disabled);
    disabled->setEnabled(false);
    list->addRow(disabled);
    list->addRow(createTextIconRow("White on black unless told otherwise", "on"));
    addBlock(list);
}
