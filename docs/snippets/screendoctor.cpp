// SPDX-License-Identifier: MIT
//! [page]
#include <Panel>
#include <ScreenDoctor>

#include <QDebug>

using namespace vexo::hox::qt;

// For the log of a device in the field: what looks wrong, and what mends it.
void setUpAndTell(QApplication &application)
{
    panel::Panel::setUp(application);
    const auto findings = panel::ScreenDoctor::findings();
    if (!findings.isEmpty())
        qWarning().noquote() << panel::ScreenDoctor::report(findings);
}
//! [page]
