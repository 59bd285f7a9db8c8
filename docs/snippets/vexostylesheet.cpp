// SPDX-License-Identifier: MIT
//! [page]
#include <VexoStylesheet>

using namespace vexo::hox::qt::ui;

// Part of Panel::setUp(), which takes the files from its options. Without it: once, after the
// fonts; stock widgets look like the panel's. The application's own file comes last, so its rules
// win.
void useStylesheets(const QString &own_file)
{
    VexoStylesheet(QStringList{ ":/css/vexo-AAL.qs", ":/css/hoxq.qs", own_file });
}
//! [page]
