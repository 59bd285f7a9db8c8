// SPDX-License-Identifier: MIT
#include "gallery/pages/loginpage.h"

#include "gallery/measures.h"
#include "gallery/widgets/fieldentry.h"
#include "gallery/widgets/formground.h"

#include <CachedVectorIcon>
#include <OnScreenKeyboard>
#include <VexoLineEdit>

#include <QLabel>

using namespace vexo::hox::qt::ui;

namespace {

const char *const right_name = "panel";
const char *const right_password = "vexo";

} // namespace

LoginPage::LoginPage()
    : Page("Login form",
        "Name panel, password vexo. Enter goes to the password and logs in; the button in a field "
        "deletes.")
    , m_name(createField("nameField"))
    , m_password(createField("passwordField"))
    , m_result(createText("-"))
{
    m_password->setDrawPasswordSecured(true);
    m_password->setDrawSecuredCentered(false);
    m_result->setObjectName("loginResult");
    auto *form = new FormGround(3);
    form->add("Name", m_name);
    form->add("Password", m_password);
    form->add("Result", m_result);
    auto *keyboard = new vexo::hox::qt::panel::OnScreenKeyboard;
    keyboard->setLanguages({ "de", "en" });
    addBlock(form);
    addBlock(keyboard);

    m_entry = new FieldEntry(keyboard);
    m_entry->add(m_name);
    m_entry->add(m_password);
    connect(m_entry, &FieldEntry::entered, this, &LoginPage::enter);
}

VexoLineEdit *LoginPage::createField(const QString &name)
{
    auto *field = new VexoLineEdit;
    field->setObjectName(name);
    field->setMmTrailingIconSize(QSizeF(3.5, 3.5));
    field->setTrailingIcon(CachedVectorIcon(":/VexoIconGeneralReset", QSizeF(0, 3.5)));
    field->enableTrailingButtonAction();
    field->setInputMethodHints(Qt::ImhNoAutoUppercase);
    return field;
}

void LoginPage::enter()
{
    if (m_entry->current() == m_name)
        m_entry->setCurrent(m_password);
    else
        logIn();
}

void LoginPage::logIn()
{
    const bool is_right = m_name->text() == right_name && m_password->text() == right_password;
    m_result->setText(is_right ? "Logged in" : "Wrong name or password");
    m_password->repaint(); // the last letter too is to be seen while it shakes
    m_password->clear();
    if (!is_right)
        m_password->shake(600, 5, uint(mmX(1.5)), false);
}
