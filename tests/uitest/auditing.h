#pragma once
// SPDX-License-Identifier: MIT

#include "support/panelscale.h"

#include <PanelAudit>
#include <ScalingInfo>

#include <QHash>
#include <QTest>

/// What the tests of the audits share.
namespace auditing {

using vexo::hox::qt::uitest::Finding;
using vexo::hox::qt::uitest::PanelAudit;
using Findings = QVector<Finding>;

inline int px(double mm, bool is_across)
{
    const auto *scaling = vexo::hox::qt::ui::ScalingInfo::inst();
    return qRound(is_across ? scaling->mm2px_X(float(mm)) : scaling->mm2px_Y(float(mm)));
}

/// What \a findings say about \a widget, as "rule severity, rule severity".
inline QString rulesOf(const Findings &findings, const QWidget *widget)
{
    QStringList rules;
    for (const Finding &finding : findings) {
        if (finding.widget == widget)
            rules += finding.rule + (finding.severity == Finding::Error ? " error" : " warning");
    }
    return rules.join(", ");
}

/// A screen, and what an audit shall say about its parts; about all others nothing.
class Screen : public QWidget
{
public:
    explicit Screen(const QSizeF &mm) { setGeometry(pxRect(QRectF(QPointF(), mm))); }

    static QRect pxRect(const QRectF &mm)
    {
        return { px(mm.x(), true), px(mm.y(), false), px(mm.width(), true),
            px(mm.height(), false) };
    }

    /// Puts \a widget to its place in its parent.
    template <typename Widget>
    Widget *add(Widget *widget, const QRectF &mm, const char *rules = "")
    {
        if (!widget->parentWidget())
            widget->setParent(this);
        widget->setGeometry(pxRect(mm));
        return expect(widget, rules);
    }

    template <typename Widget>
    Widget *expect(Widget *widget, const char *rules)
    {
        m_expected[widget] = QString(rules);
        return widget;
    }

    bool appear()
    {
        show();
        return QTest::qWaitForWindowExposed(this);
    }

    /// Empty if all is as expected.
    QString surprises(const Findings &findings) const
    {
        QString surprises;
        for (auto it = m_expected.begin(); it != m_expected.end(); ++it) {
            const QString rules = rulesOf(findings, it.key());
            if (rules != it.value())
                surprises += nameOf(it.key()) + rules + ", not " + it.value() + '\n';
        }
        for (const Finding &finding : findings) {
            if (!m_expected.contains(finding.widget))
                surprises += PanelAudit::report({ finding });
        }
        return surprises;
    }

private:
    static QString nameOf(const QWidget *widget)
    {
        return QString("%1 at %2, %3: ")
            .arg(widget->metaObject()->className())
            .arg(widget->x())
            .arg(widget->y());
    }

    QHash<const QWidget *, QString> m_expected;
};

/// The panels on which each fault is seeded, px/mm.
inline void addPanels()
{
    QTest::addColumn<QSizeF>("px_per_mm");
    QTest::newRow("4 px/mm") << QSizeF(4, 4);
    QTest::newRow("8 px/mm") << QSizeF(8, 8);
    QTest::newRow("12 px/mm") << QSizeF(12, 12);
    QTest::newRow("wide pixels") << QSizeF(5, 8);
    QTest::newRow("high pixels") << QSizeF(9, 4);
}

} // namespace auditing

/// In a test function with the rows of addPanels().
#define ON_PANEL                                                                                   \
    QFETCH(QSizeF, px_per_mm);                                                                     \
    const PanelScale scale(px_per_mm.width(), px_per_mm.height())
