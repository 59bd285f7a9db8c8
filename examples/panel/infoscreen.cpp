// SPDX-License-Identifier: MIT
#include "infoscreen.h"

#include <ScreenDoctor>

#include <QHBoxLayout>
#include <QLabel>
#include <QSysInfo>

using vexo::hox::qt::panel::ScreenDoctor;
using vexo::hox::qt::panel::ScreenFacts;

InfoScreen::InfoScreen(PanelWindow *panel)
    : Screen(panel)
{
    addHead([] { return tr("Device"); });
    QVBoxLayout *list = addList();
    const auto findings = ScreenDoctor::findings();
    addValue(
        list, [] { return tr("Application"); }, [] { return QString("1.0.0"); });
    addValue(
        list, [] { return tr("Toolkit"); }, [] { return QString("Qt ") + qVersion(); });
    addValue(
        list, [] { return tr("System"); }, [] { return QSysInfo::prettyProductName(); });
    addValue(
        list, [] { return tr("Kernel"); }, [] { return QSysInfo::kernelVersion(); });
    addValue(
        list, [] { return tr("Processor"); }, [] { return QSysInfo::currentCpuArchitecture(); });
    addValue(
        list, [] { return tr("Screen"); }, [] { return ScreenFacts::inUse().text(); });
    addValue(
        list, [] { return tr("Size of the screen"); },
        [=] { return findings.isEmpty() ? tr("Looks right") : findings.first().text; });
}

void InfoScreen::addValue(QVBoxLayout *list, const Text &name, const Text &value)
{
    auto *row = new QWidget;
    row->setMinimumHeight(mmY(9.8));
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(mmX(3), mmY(1), mmX(3), mmY(1));
    layout->setSpacing(mmX(4));
    QLabel *left = createText(9);
    QLabel *right = createText(9, QFont::Normal);
    right->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    right->setWordWrap(true);
    layout->addWidget(left);
    layout->addWidget(right, 1);
    list->addWidget(row);
    list->addWidget(createLine());
    follow([=] {
        setGround(row, look().surface);
        left->setText(name());
        right->setText(value());
        setInk(right, look().faint);
    });
}
