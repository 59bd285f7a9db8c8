#pragma once
// SPDX-License-Identifier: MIT

#include <PanelAudit>
#include <ScalingInfo>

#include <QTest>

#include <functional>

/// What the tests of the audits share.
namespace auditing {

using vexo::hox::qt::uitest::Finding;
using Findings = QVector<Finding>;

inline int px(double mm, bool is_across)
{
    const auto *scaling = vexo::hox::qt::ui::ScalingInfo::inst();
    return qRound(is_across ? scaling->mm2px_X(float(mm)) : scaling->mm2px_Y(float(mm)));
}

/// Puts \a widget to a place in mm.
inline void place(QWidget *widget, double x, double y, double width, double height)
{
    widget->setGeometry(px(x, true), px(y, false), px(width, true), px(height, false));
}

inline void show(QWidget *window)
{
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window));
}

/// What \a findings say about \a widget, as "rule severity", one after the other.
inline QStringList rulesOf(const Findings &findings, const QWidget *widget)
{
    QStringList rules;
    for (const Finding &finding : findings) {
        if (finding.widget == widget)
            rules += finding.rule
                + QLatin1String(finding.severity == Finding::Error ? " error" : " warning");
    }
    return rules;
}

/// The panels on which each fault is seeded, px/mm.
inline void addPanels()
{
    QTest::addColumn<double>("px_per_mm_x");
    QTest::addColumn<double>("px_per_mm_y");
    QTest::newRow("4 px/mm") << 4.0 << 4.0;
    QTest::newRow("8 px/mm") << 8.0 << 8.0;
    QTest::newRow("12 px/mm") << 12.0 << 12.0;
    QTest::newRow("wide pixels") << 5.0 << 8.0;
    QTest::newRow("high pixels") << 9.0 << 4.0;
}

} // namespace auditing

/// In a test function with the rows of addPanels().
#define ON_PANEL                                                                                   \
    QFETCH(double, px_per_mm_x);                                                                   \
    QFETCH(double, px_per_mm_y);                                                                   \
    const PanelScale scale(px_per_mm_x, px_per_mm_y)
