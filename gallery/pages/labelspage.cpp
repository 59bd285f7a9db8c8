// SPDX-License-Identifier: MIT
#include "gallery/pages/labelspage.h"

#include "gallery/measures.h"
#include "gallery/widgets/framedground.h"
#include "gallery/widgets/tilelayout.h"

#include <VexoColors>
#include <VexoLabel>
#include <VexoLineEdit>

#include <QCheckBox>
#include <QLabel>
#include <QVBoxLayout>

using namespace vexo::hox::qt::ui;

namespace {

// The outline shows how far a label reaches.
void addOutlined(TileLayout *tiles, VexoLabel *label)
{
    tiles->addWidget(new FramedGround(VexoColors::C0, label, QSize(1, 1)));
}

} // namespace

LabelsPage::LabelsPage()
    : Page("Labels",
        "A VexoLabel is a caption of fixed height in one colour on a ground of one colour. Its "
        "text is wrapped between words; what does not fit is cut.")
{
    addSizes();
    addColors();
    addAlignments();
    addLanguages();
    addBuddies();
}

void LabelsPage::addSizes()
{
    TileLayout *tiles = addTiles("Sizes and weights", 40);
    const auto add = [tiles](double pt, int weight, const QString &name) {
        auto *label = new VexoLabel(QString("%1 pt, %2").arg(pt).arg(name));
        label->setPtFontSize(pt);
        label->setFontWeight(weight);
        label->setMmHeight(pt * 0.6);
        addOutlined(tiles, label);
    };
    add(7, QFont::Medium, "medium");
    add(7, QFont::Light, "light");
    add(9, QFont::Normal, "regular");
    add(13, QFont::Bold, "bold");
}

void LabelsPage::addColors()
{
    TileLayout *tiles = addTiles("Colours", 23);
    const auto add = [tiles](const QString &name, const QColor &text, const QColor &ground) {
        auto *label = new VexoLabel(name);
        label->setTextColor(text);
        label->setBackgroundColor(ground);
        label->setTextAlignment(Qt::AlignCenter);
        tiles->addWidget(label);
    };
    add("C3 on C2", VexoColors::C3, VexoColors::C2);
    add("C0 on C4", VexoColors::C0, VexoColors::C4);
    add("C3 on C7", VexoColors::C3, VexoColors::C7);
    add("C0 on C9", VexoColors::C0, VexoColors::C9);
}

void LabelsPage::addAlignments()
{
    TileLayout *tiles = addTiles("Alignment", 40);
    const auto add = [tiles](Qt::Alignment alignment, const QString &text) {
        auto *label = new VexoLabel(text);
        label->setWordWrap(true); // may be narrower than its text in one line
        label->setTextAlignment(alignment);
        label->setMmHeight(9);
        addOutlined(tiles, label);
    };
    add(Qt::AlignLeft | Qt::AlignVCenter, "Left, the standard");
    add(Qt::AlignCenter, "Centred");
    add(Qt::AlignRight | Qt::AlignBottom, "Right, at the bottom");
    const QString text = "A text that is longer than its label is wide is wrapped ";
    add(Qt::AlignLeft | Qt::AlignVCenter, text);
    add(Qt::AlignCenter, text);
    add(Qt::AlignRight | Qt::AlignVCenter, text + "and, when it needs more lines than fit, cut.");
}

void LabelsPage::addLanguages()
{
    TileLayout *tiles = addTiles("Languages", 40);
    for (const char *text : { "Größe, Maßstab, Übertragung", "Размер экрана", "屏幕尺寸" })
        addOutlined(tiles, new VexoLabel(text));
}

void LabelsPage::addBuddies()
{
    addSection("Visible buddies");
    auto *form = new QWidget;
    form->setFixedHeight(mmY(16));
    auto *column = new QVBoxLayout(form);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(mmY(1));
    auto *caption = new VexoLabel("Name of the device");
    auto *field = new VexoLineEdit;
    field->setText("Panel 1");
    caption->setBuddy(field);
    column->addWidget(caption);
    column->addWidget(field);
    column->addStretch();
    caption->addVisibleBuddy(field);
    field->setVisible(true);
    auto *visible = new QCheckBox("Show the caption; its field follows");
    visible->setChecked(true);
    connect(visible, &QCheckBox::toggled, caption, &VexoLabel::setVisible);
    addBlock(form);
    addBlock(visible);
}
