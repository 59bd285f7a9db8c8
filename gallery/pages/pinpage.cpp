// SPDX-License-Identifier: MIT
#include "gallery/pages/pinpage.h"

#include "gallery/measures.h"
#include "gallery/widgets/fieldentry.h"
#include "gallery/widgets/formground.h"

#include <OnScreenKeyboard>
#include <VexoColors>
#include <VexoLineEdit>

#include <QLabel>

using namespace vexo::hox::qt::ui;

namespace {

const int digits = 4;
const char *const right_pin = "2026";
const unsigned int shake_ms = 600;
const unsigned int swings_per_second = 5;

} // namespace

PinPage::PinPage()
    : Page("PIN entry",
        "The PIN is 2026. A wrong one shakes its field, which shows what was wrong although it is "
        "empty already.")
    , m_secret(createField("pinField"))
    , m_open(createField("codeField"))
    , m_result(createText("-"))
{
    m_secret->setDrawPasswordSecured(true);
    m_open->setUnderscores(digits);
    m_open->setPlaceholderColor(VexoColors::C5);
    m_result->setObjectName("pinResult");
    auto *form = new FormGround(3);
    form->add("Secret", m_secret);
    form->add("Open", m_open);
    form->add("Result", m_result);
    auto *keyboard = new vexo::hox::qt::panel::OnScreenKeyboard;
    addBlock(form);
    addBlock(keyboard);

    m_entry = new FieldEntry(keyboard);
    m_entry->add(m_secret);
    m_entry->add(m_open);
    connect(m_entry, &FieldEntry::typed, this, &PinPage::checkIfComplete);
    connect(m_entry, &FieldEntry::entered, this, &PinPage::check);
}

VexoLineEdit *PinPage::createField(const QString &name)
{
    auto *field = new VexoLineEdit;
    field->setObjectName(name);
    field->setMaxLength(digits);
    field->setDrawCentered(true);
    field->setInputMethodHints(Qt::ImhDigitsOnly);
    return field;
}

void PinPage::checkIfComplete()
{
    if (m_entry->current()->text().size() == digits)
        check();
}

void PinPage::check()
{
    Field *field = m_entry->current();
    const bool is_right = field->text() == right_pin;
    m_result->setText(is_right ? "Right" : "Wrong, try again");
    field->repaint(); // the last digit too is to be seen while it shakes
    field->clear();
    if (!is_right)
        field->shake(shake_ms, swings_per_second, uint(mmX(1.5)), field == m_open);
}
