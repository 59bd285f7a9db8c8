// SPDX-License-Identifier: MIT
#include "gallery/pages/settingspage.h"

#include "gallery/measures.h"
#include "gallery/widgets/ground.h"
#include "gallery/widgets/rowgroup.h"

#include <PanelDialog>
#include <VexoColors>
#include <VexoFunctionButton>
#include <VexoNumericButton>
#include <VexoPushButton>
#include <VexoVerticalScrollArea>
#include <VexoVerticalScrollContent>

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

using namespace vexo::hox::qt::ui;
using vexo::hox::qt::panel::PanelDialog;

namespace {

const double indent_in_mm = 3; // of all texts, as of the rows

VexoFunctionButton *addRow(
    RowGroup *list, VexoFunctionButton::VexoFunctionButtonType type, const QString &text)
{
    auto *row = new VexoFunctionButton(list, type);
    row->setText(text);
    list->addRow(row);
    return row;
}

QLabel *createIndentedText(const QString &text, double pt, int weight)
{
    QLabel *label = Page::createText(text, pt, weight);
    label->setIndent(mmX(indent_in_mm));
    return label;
}

RowGroup *addRowGroup(QVBoxLayout *list, const QString &heading)
{
    list->addSpacing(mmY(4));
    list->addWidget(createIndentedText(heading, 7, QFont::Normal));
    list->addSpacing(mmY(1));
    auto *rows = new RowGroup;
    list->addWidget(rows);
    return rows;
}

QLabel *createHeadline()
{
    QLabel *headline = createIndentedText("Settings", 13, QFont::Medium);
    headline->setFixedHeight(mmY(11));
    return headline;
}

} // namespace

SettingsPage::SettingsPage()
    : m_status(createIndentedText("Agree to the terms to continue", 7, QFont::Normal))
    , m_continue(new VexoPushButton)
    , m_brightness(new VexoNumericButton)
{
    layout()->addWidget(createHeadline());
    layout()->addWidget(createLine());
    layout()->addWidget(createList());
    layout()->addWidget(createLine());
    layout()->addWidget(createFoot());
    restoreDefaults();
}

QWidget *SettingsPage::createList()
{
    auto *content = new VexoVerticalScrollContent;
    auto *list = qobject_cast<QVBoxLayout *>(content->layout());
    list->setContentsMargins(0, 0, 0, mmY(4));
    addDisplay(list);
    addLanguages(list);
    addTones(list);
    addService(list);
    auto *area = new VexoVerticalScrollArea;
    area->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored); // takes what is left
    area->setWidget(content);
    return area;
}

QWidget *SettingsPage::createFoot()
{
    m_continue->setText("Continue");
    m_continue->setFixedWidth(mmX(36));
    connect(m_continue, &VexoPushButton::clicked, m_status,
        [this] { m_status->setText("Settings saved"); });
    auto *foot = new QWidget;
    setGround(foot, VexoColors::C1);
    foot->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto *row = new QHBoxLayout(foot);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_status, 1);
    row->addWidget(m_continue);
    return foot;
}

void SettingsPage::addDisplay(QVBoxLayout *list)
{
    m_brightness->setMaximum(100);
    m_brightness->setStepSize(10);
    m_brightness->setFixedHeight(mmY(12));
    setGround(m_brightness, VexoColors::C1);
    connect(m_brightness, &VexoNumericButton::valueChanged, m_status,
        [this](int value) { m_status->setText(QString("Brightness %1 %").arg(value)); });
    addRowGroup(list, "Brightness, %")->addRow(m_brightness);
    RowGroup *rows = addRowGroup(list, "Display");
    m_night_mode = addRow(rows, Row::CheckboxType, "Night mode");
    addRow(rows, Row::CheckboxType, "Camera, not connected")->setEnabled(false);
}

void SettingsPage::addLanguages(QVBoxLayout *list)
{
    RowGroup *rows = addRowGroup(list, "Language");
    const auto add = [&](const QString &language) {
        Row *row = addRow(rows, Row::FullsizeRadiobuttonType, language);
        connect(row, &Row::clicked, m_status,
            [=] { m_status->setText(QString("Language %1").arg(language)); });
        return row;
    };
    add("Deutsch");
    m_english = add("English");
    add(QString::fromUtf8("中文"));
    add(QString::fromUtf8("العربية"));
}

void SettingsPage::addTones(QVBoxLayout *list)
{
    RowGroup *rows = addRowGroup(list, "Key tone");
    auto *group = new QButtonGroup(rows);
    m_short_tone = addRow(rows, Row::RadiobuttonType, "Short");
    group->addButton(m_short_tone->getButtonInstance());
    group->addButton(addRow(rows, Row::RadiobuttonType, "Long")->getButtonInstance());
    group->addButton(addRow(rows, Row::RadiobuttonType, "None")->getButtonInstance());
}

void SettingsPage::addService(QVBoxLayout *list)
{
    RowGroup *rows = addRowGroup(list, "Service");
    Row *reset = addRow(rows, Row::ActionType, "Reset to factory settings");
    connect(reset, &Row::clicked, this, &SettingsPage::askForReset);
    m_agreement = addRow(rows, Row::TickAgreementType, "I agree to the terms of use");
    connect(m_agreement->getButtonInstance(), &QAbstractButton::toggled, m_continue,
        [this](bool agreed) {
            m_continue->setEnabled(agreed);
            if (agreed)
                m_status->setText("Terms accepted");
        });
}

void SettingsPage::askForReset()
{
    auto *question = new PanelDialog("Reset to factory settings?", this);
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->setExplanation(
        "Brightness, language and key tone go back to what they were on the first day.");
    question->addButton("Cancel");
    question->addButton("Reset");
    connect(question, &PanelDialog::answered, this, [this](int button) {
        const bool is_yes = button == 1;
        if (is_yes)
            restoreDefaults();
        m_status->setText(is_yes ? "Factory settings restored" : "Nothing was changed");
    });
    question->open();
}

void SettingsPage::restoreDefaults()
{
    m_brightness->setValue(50);
    m_night_mode->getButtonInstance()->setChecked(false);
    m_english->setChecked(true);
    m_short_tone->getButtonInstance()->setChecked(true);
    m_agreement->getButtonInstance()->setChecked(false);
    m_continue->setEnabled(false);
}
