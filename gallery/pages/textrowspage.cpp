// SPDX-License-Identifier: MIT
#include "gallery/pages/textrowspage.h"

#include "gallery/measures.h"

#include <ScalingInfo>
#include <VexoColors>
#include <VexoHorizontalLabelWidget>
#include <VexoRuler>
#include <VexoTextEnumeration>

#include <QVBoxLayout>

using namespace vexo::hox::qt::ui;

namespace {

QVBoxLayout *createList()
{
    auto *list = new QVBoxLayout;
    list->setSpacing(0);
    return list;
}

VexoHorizontalLabelWidget *createRow(const QString &name, const QString &value)
{
    auto *row = new VexoHorizontalLabelWidget;
    row->setMmIndent(3);
    row->setLeftLabelMmWidth(28);
    row->setRightLabelMmWidth(47);
    row->setLeftLabelText(name);
    row->setRightLabelText(value);
    return row;
}

} // namespace

TextRowsPage::TextRowsPage()
    : Page("Text rows",
        "Two compositions of texts: an item of a numbered list, and two columns side by side.")
{
    addLicence();
    addDeviceInfo();
}

void TextRowsPage::addLicence()
{
    addSection("VexoTextEnumeration: a licence");
    const QStringList terms{
        "You may use this software on one device at a time and keep one copy for safety.",
        "You may not sell it, lend it for money, or take out notices of who made it.",
        "It comes as it is. Nobody is liable for damage that its use brings about, as far as the "
        "law allows.",
        "The licence ends when you break its terms; all copies have to be deleted then.",
    };
    QVBoxLayout *list = createList();
    for (int i = 0; i < terms.size(); ++i) {
        auto *item = new VexoTextEnumeration;
        item->setText(terms.at(i), i + 1);
        list->addWidget(item);
        list->addWidget(new VexoRuler(nullptr, VexoRuler::SettingsUnderLastItem));
    }
    addBlock(list);
}

void TextRowsPage::addDeviceInfo()
{
    addSection("VexoHorizontalLabelWidget: device information");
    const ScalingInfo *scaling = ScalingInfo::inst();
    QVBoxLayout *list = createList();
    const auto add = [list](const QString &name, const QString &value, bool is_light = false) {
        VexoHorizontalLabelWidget *row = createRow(name, value);
        row->setPtFontSize(9);
        row->setMmHeight(8);
        if (is_light) {
            row->setTextColor(VexoColors::C3);
            row->setBackgroundColor(VexoColors::C2);
        }
        list->addWidget(row, 0, Qt::AlignLeft);
    };
    add("Library", "HoxqUi " HOXQ_VERSION);
    add("Toolkit", QString("Qt %1").arg(qVersion()));
    add("Panel",
        QString("%1 x %2 px").arg(scaling->m_pixels.width()).arg(scaling->m_pixels.height()));
    add("Size",
        QString("%1 x %2 mm").arg(scaling->m_size_mm.width()).arg(scaling->m_size_mm.height()));
    add("Serial number", "In other colours: 4711-0815", true);
    addBlock(list);
}
