// SPDX-License-Identifier: MIT
#include "uitest/panelaudit.h"

namespace vexo::hox::qt::uitest {

namespace {

QString number(double mm)
{
    return QString::number(mm, 'f', 1);
}

QString line(const Finding &finding)
{
    const QString place = QStringLiteral("%1 x %2 mm at %3, %4 mm")
                              .arg(number(finding.mm.width()), number(finding.mm.height()),
                                  number(finding.mm.x()), number(finding.mm.y()));
    const QLatin1String severity(finding.severity == Finding::Error ? "error" : "warning");
    return QStringLiteral("%1: %2: %3: %4 (%5)")
        .arg(severity, finding.rule, finding.where, finding.text, place);
}

} // namespace

QVector<Finding> PanelAudit::all(QWidget *window, int idle_ms)
{
    const QPointer<QWidget> guard(window); // an application's own code runs in between
    QVector<Finding> findings;
    for (const auto &rule :
        { touchSizes(guard), contrasts(guard), texts(guard), names(guard), idle(guard, idle_ms) }) {
        for (const Finding &finding : rule)
            findings.append(finding);
    }
    return findings;
}

QString PanelAudit::report(const QVector<Finding> &findings)
{
    QString report;
    for (const Finding &finding : findings)
        report += line(finding) + QLatin1Char('\n');
    return report;
}

} // namespace vexo::hox::qt::uitest
