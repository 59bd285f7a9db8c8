#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

class FormGround;
class SignalLog;

namespace vexo::hox::qt::ui {
class VexoLineEdit;
}

/// VexoLineEdit in each of its modes.
class LineEditsPage : public Page
{
public:
    LineEditsPage();

private:
    using Field = vexo::hox::qt::ui::VexoLineEdit;

    void addModes();
    void addTexts();
    void add(FormGround *form, const QString &caption, Field *field);

    SignalLog *m_log;
};
