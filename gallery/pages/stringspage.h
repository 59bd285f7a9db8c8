#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

#include <string>

class FormGround;
class QLabel;

namespace vexo::hox::qt::ui {
class VexoLineEdit;
}

/// A converter: what is typed, as StringUtil encodes, changes and splits it, and what it decodes
/// to.
class StringsPage : public Page
{
public:
    StringsPage();

private:
    using Convert = std::string (*)(const std::string &text);

    FormGround *createForm();
    QLabel *addResult(FormGround *form, const QString &caption, const char *name, Convert convert);

    vexo::hox::qt::ui::VexoLineEdit *m_field;
};
