#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

class FieldEntry;
class QLabel;

namespace vexo::hox::qt::ui {
class VexoLineEdit;
}

/// A login form with name and password.
class LoginPage : public Page
{
public:
    LoginPage();

private:
    using Field = vexo::hox::qt::ui::VexoLineEdit;

    Field *createField(const QString &name);
    void enter();
    void logIn();

    Field *m_name;
    Field *m_password;
    QLabel *m_result;
    FieldEntry *m_entry;
};
