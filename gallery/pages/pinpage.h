#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

class FieldEntry;
class QLabel;

namespace vexo::hox::qt::ui {
class VexoLineEdit;
}

/// PIN entry: a secret field that fills with dots, and an open one that counts down underscores.
class PinPage : public Page
{
public:
    PinPage();

private:
    using Field = vexo::hox::qt::ui::VexoLineEdit;

    Field *createField(const QString &name);
    void checkIfComplete();
    void check();

    Field *m_secret;
    Field *m_open;
    QLabel *m_result;
    FieldEntry *m_entry;
};
