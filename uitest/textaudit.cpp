// SPDX-License-Identifier: MIT
#include "uitest/panelaudit.h"

#include "uitest/inkcanvas_p.h"
#include "uitest/layouttrial_p.h"
#include "uitest/widgetpath_p.h"
#include "uitest/widgetwalk_p.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QMetaProperty>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTextEdit>

#include <algorithm>

namespace vexo::hox::qt::uitest {

namespace {

const QChar ellipsis(0x2026);

// All that a widget says of itself, as an application may have written an ellipsis.
QStringList sourcesOf(const QWidget *widget)
{
    QStringList sources;
    const QMetaObject *meta = widget->metaObject();
    for (int i = 0; i < meta->propertyCount(); ++i) {
        if (meta->property(i).userType() == QMetaType::QString)
            sources += meta->property(i).read(widget).toString();
    }
    if (const auto *bar = qobject_cast<const QTabBar *>(widget)) {
        for (int i = 0; i < bar->count(); ++i)
            sources += bar->tabText(i);
    }
    return sources;
}

QString itemTextAt(const QWidget *widget, const QPoint &at)
{
    const auto *view = qobject_cast<const QAbstractItemView *>(widget->parentWidget());
    return view && view->viewport() == widget ? view->indexAt(at).data(Qt::DisplayRole).toString()
                                              : QString();
}

// What a user has typed scrolls in its field.
bool isTyped(const QWidget *widget, const QString &text)
{
    if (const auto *field = qobject_cast<const QLineEdit *>(widget))
        return field->displayText().contains(text);
    const QWidget *parent = widget->parentWidget();
    return qobject_cast<const QTextEdit *>(parent) || qobject_cast<const QPlainTextEdit *>(parent);
}

int shareOf(int px, int percent)
{
    return px * percent / 100;
}

/// Looks at the texts of a window in one layout.
class Look
{
public:
    Look(QWidget *window, const QString &how, bool is_trial)
        : m_window(window)
        , m_how(how)
        , m_is_trial(is_trial)
        , m_canvas(window, InkCanvas::Everything)
    {
    }

    void check(QVector<Finding> *findings);

private:
    struct Fault
    {
        int ink = 0; // that must be seen
        QRect seen;
        const char *rule = nullptr;
        Finding::Severity severity = Finding::Error;
        QString text;
    };

    const Ink &ink(int index) const { return m_canvas.inks().at(index); }
    bool isOurs(const Ink &ink) const;
    bool isScrolledAt(const QWidget *widget, Qt::Orientation orientation, int edge) const;
    QStringList cutSides(const Ink &ink, const QWidget *widget) const;
    bool isElided(const Ink &ink, const QWidget *widget) const;
    bool lieOver(const Ink &lower, const Ink &upper) const;
    void findCut(int index);
    void findOverlaps(int index);
    void findWithoutRoom(QVector<Finding> *findings) const;
    void dropCovered();
    void append(const Fault &fault, QVector<Finding> *findings) const;

    QWidget *const m_window;
    const QString m_how;
    const bool m_is_trial;
    const InkCanvas m_canvas;
    QVector<Fault> m_faults;
};

QString quoted(const QString &text)
{
    return text.isEmpty() ? QStringLiteral("a text") : QStringLiteral("\"%1\"").arg(text.trimmed());
}

void Look::check(QVector<Finding> *findings)
{
    for (int i = 0; i < m_canvas.inks().size(); ++i) {
        if (!isOurs(ink(i)))
            continue;
        findCut(i);
        findOverlaps(i);
    }
    dropCovered();
    for (const Fault &fault : qAsConst(m_faults))
        append(fault, findings);
    findWithoutRoom(findings);
}

bool Look::isOurs(const Ink &ink) const
{
    return ink.kind == Ink::Text && ink.widget && m_window->isAncestorOf(ink.widget)
        && !ink.clip.isEmpty() && !ink.px.isEmpty();
}

// Whether scrolling brings what lies beyond \a edge of what is drawn, px of the screen.
bool Look::isScrolledAt(const QWidget *widget, Qt::Orientation orientation, int edge) const
{
    for (; widget && !widget->isWindow(); widget = widget->parentWidget()) {
        if (!isScrolled(widget, orientation))
            continue;
        const QRect px = placeIn(widget->window(), widget, widget->rect());
        const int first = orientation == Qt::Horizontal ? px.left() : px.top();
        const int last = orientation == Qt::Horizontal ? px.right() : px.bottom();
        if (qAbs(edge - first) <= 1 || qAbs(edge - last) <= 1)
            return true;
    }
    return false;
}

// A soft edge of a letter may lack.
QStringList Look::cutSides(const Ink &ink, const QWidget *widget) const
{
    const auto side = [&](int px, Qt::Orientation orientation, int edge, const char *name) {
        const QSizeF mm = mmOf(QSize(px, px));
        const double cut = orientation == Qt::Horizontal ? mm.width() : mm.height();
        return px <= 1 || isScrolledAt(widget, orientation, edge)
            ? QString()
            : QStringLiteral("%1 mm at the %2").arg(cut, 0, 'f', 1).arg(QLatin1String(name));
    };
    const QRect &px = ink.px;
    const QRect &clip = ink.clip;
    QStringList sides{ side(clip.left() - px.left(), Qt::Horizontal, clip.left(), "left"),
        side(px.right() - clip.right(), Qt::Horizontal, clip.right(), "right"),
        side(clip.top() - px.top(), Qt::Vertical, clip.top(), "top"),
        side(px.bottom() - clip.bottom(), Qt::Vertical, clip.bottom(), "bottom") };
    sides.removeAll(QString());
    return sides;
}

bool Look::isElided(const Ink &ink, const QWidget *widget) const
{
    if (!ink.text.contains(ellipsis))
        return false;
    const QPoint corner = placeIn(widget->window(), widget, widget->rect()).topLeft();
    QStringList sources = sourcesOf(widget);
    sources += itemTextAt(widget, ink.px.center() - corner);
    if (const QWidget *parent = widget->parentWidget())
        sources += sourcesOf(parent);
    return std::none_of(sources.begin(), sources.end(),
        [&](const QString &source) { return source.contains(ink.text); });
}

void Look::findCut(int index)
{
    const Ink &ink = this->ink(index);
    const QWidget *widget = ink.widget;
    if (isTyped(widget, ink.text))
        return;
    const QRect seen = ink.px & ink.clip;
    const QStringList sides = cutSides(ink, widget);
    if (!sides.isEmpty())
        m_faults.append({ index, seen, "text-cut", Finding::Error,
            QStringLiteral("%1 is cut by %2")
                .arg(quoted(ink.text), sides.join(QLatin1String(" and "))) });
    else if (isElided(ink, widget))
        m_faults.append({ index, seen, "text-cut", Finding::Warning,
            QStringLiteral("shows no more than %1").arg(quoted(ink.text)) });
}

// Letters of a line may touch, and so may lines; a shadow is the same text twice.
bool Look::lieOver(const Ink &lower, const Ink &upper) const
{
    if (lower.widget == upper.widget && lower.text == upper.text)
        return false;
    const QRect common = lower.px & lower.clip & upper.px & upper.clip;
    const int height = qMin(lower.px.height(), upper.px.height());
    return common.width() > 1 + shareOf(int(lower.font_px), 15)
        && common.height() > 1 + shareOf(height, 20);
}

void Look::findOverlaps(int index)
{
    for (int below = 0; below < index; ++below) {
        const Ink &lower = ink(below);
        if (!isOurs(lower) || !lieOver(lower, ink(index)))
            continue;
        const QRect common = lower.px & lower.clip & ink(index).px & ink(index).clip;
        m_faults.append({ below, common, "text-overlap", Finding::Error,
            QStringLiteral("%1 lies below %2 of %3 over %4")
                .arg(quoted(lower.text), quoted(ink(index).text), widgetName(ink(index).widget),
                    textOf(mmOf(common.size()))) });
    }
}

// In a layout that has no room some get none.
void Look::findWithoutRoom(QVector<Finding> *findings) const
{
    const Widgets shown = shownWidgets(m_window);
    for (QWidget *widget : shown) {
        const bool has_text
            = qobject_cast<QLabel *>(widget) || qobject_cast<QAbstractButton *>(widget);
        if (!has_text || !widget->size().isEmpty())
            continue;
        const QString text = widget->property("text").toString();
        const QRect px = placeIn(m_window, widget, widget->rect());
        if (!text.isEmpty())
            findings->append(
                findingAt(widget, px, "text-cut", m_is_trial ? Finding::Warning : Finding::Error,
                    quoted(text) + QStringLiteral(" has no room at all") + m_how));
    }
}

// By a sheet over the page, say.
void Look::dropCovered()
{
    if (m_faults.isEmpty())
        return;
    QSet<int> inks;
    for (const Fault &fault : qAsConst(m_faults))
        inks.insert(fault.ink);
    const InkCanvas without(m_window, InkCanvas::WithoutThese, QRegion(), inks);
    const auto is_covered = [&](const Fault &fault) {
        return !fault.seen.isEmpty() && m_canvas.copy(fault.seen) == without.copy(fault.seen);
    };
    m_faults.erase(std::remove_if(m_faults.begin(), m_faults.end(), is_covered), m_faults.end());
}

// The first fault of a kind speaks for its widget.
void Look::append(const Fault &fault, QVector<Finding> *findings) const
{
    const Ink &ink = this->ink(fault.ink);
    const auto is_said = [&](const Finding &finding) {
        return finding.widget == ink.widget && finding.rule == QLatin1String(fault.rule);
    };
    if (std::any_of(findings->begin(), findings->end(), is_said))
        return;
    const QPoint corner = m_window->mapFrom(m_window->window(), ink.px.topLeft());
    findings->append(findingAt(ink.widget, QRect(corner, ink.px.size()), fault.rule,
        m_is_trial ? Finding::Warning : fault.severity, fault.text + m_how));
}

} // namespace

QVector<Finding> PanelAudit::texts(QWidget *window, double factor)
{
    QVector<Finding> findings;
    if (!window || !window->isVisible())
        return findings;
    const QPointer<QWidget> guard(window);
    Look(window, QString(), false).check(&findings);
    LayoutTrial trial(window);
    if (factor > 1 && factor < 10) {
        trial.lengthen(factor);
        if (guard)
            Look(window, QStringLiteral(", with texts %1 times as long").arg(factor), true)
                .check(&findings);
        trial.restore();
    }
    if (guard && !guard->isRightToLeft()) {
        trial.turn();
        if (guard)
            Look(window, QStringLiteral(", from right to left"), true).check(&findings);
    }
    return findings;
}

} // namespace vexo::hox::qt::uitest
