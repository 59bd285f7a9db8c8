// SPDX-License-Identifier: MIT
//! [page]
#include <PanelAudit>

#include <QDebug>

#include <algorithm>

using namespace vexo::hox::qt::uitest;

// A screen that is shown: errors fail the test, warnings are told.
bool isFitForFingersAndEyes(QWidget *screen)
{
    const QVector<Finding> findings = PanelAudit::all(screen);
    qInfo().noquote() << PanelAudit::report(findings);
    return std::none_of(findings.begin(), findings.end(),
        [](const Finding &finding) { return finding.severity == Finding::Error; });
}
//! [page]
