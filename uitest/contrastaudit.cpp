// SPDX-License-Identifier: MIT
#include "uitest/panelaudit.h"

#include "ui/foundation/scalinginfo.h"
#include "uitest/buttonstates_p.h"
#include "uitest/contrastratio_p.h"
#include "uitest/inkcanvas_p.h"
#include "uitest/widgetwalk_p.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QTabBar>

#include <algorithm>
#include <memory>

namespace vexo::hox::qt::uitest {

namespace {

// A tenth of what a text covers may be worse: a line of a frame, a letter over an edge.
const double worst_tenth = 0.1;
// Of an icon the strongest twentieth tells: most of a thin line is its soft edge.
const double strongest_twentieth = 0.95;
const double icon_limit = 3; // WCAG 2.2, 1.4.11
const double least_transparent = 0.1; // an image with less is a picture or a ground
const int largest_icon_mm = 25;

bool isEnabledAt(const QWidget *widget, const QPoint &at)
{
    if (!widget->isEnabled())
        return false;
    if (const auto *bar = qobject_cast<const QTabBar *>(widget))
        return bar->tabAt(at) < 0 || bar->isTabEnabled(bar->tabAt(at));
    const auto *view = qobject_cast<const QAbstractItemView *>(widget->parentWidget());
    if (!view || view->viewport() != widget)
        return true;
    const QModelIndex index = view->indexAt(at);
    return !index.isValid() || (index.flags() & Qt::ItemIsEnabled);
}

int areaOf(const QRect &px)
{
    return px.width() * px.height();
}

bool isIconHolder(const QWidget *widget)
{
    return qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QLabel *>(widget);
}

/// Looks at a window in one state of its buttons.
class Look
{
public:
    Look(QWidget *window, const QRegion &region, const ContrastLimits &limits, const char *state)
        : m_window(window)
        , m_region(region)
        , m_limits(limits)
        , m_state(QLatin1String(state))
        , m_bare(window, InkCanvas::WithoutTexts, region)
        , m_solid(window, InkCanvas::SolidTexts, region)
    {
    }

    void check(QVector<Finding> *findings);

private:
    bool isOurs(const Ink &ink) const;
    bool isIcon(int index) const;
    bool isShown(const Ink &ink);
    bool isLarge(const Ink &ink) const;
    void checkText(const Ink &ink, QVector<Finding> *findings);
    void checkIcons(QVector<Finding> *findings);
    void complain(const Ink &ink, const Contrast &contrast, double limit, const char *what,
        QVector<Finding> *findings) const;

    QWidget *const m_window;
    const QRegion m_region;
    const ContrastLimits m_limits;
    const QLatin1String m_state;
    const InkCanvas m_bare;
    const InkCanvas m_solid;
    std::unique_ptr<const InkCanvas> m_marked; // made when it is needed
};

void Look::check(QVector<Finding> *findings)
{
    for (const Ink &ink : m_solid.inks()) {
        if (ink.kind == Ink::Text && isOurs(ink))
            checkText(ink, findings);
    }
    checkIcons(findings);
}

bool Look::isOurs(const Ink &ink) const
{
    const QRect seen = ink.px & ink.clip;
    const QWidget *widget = ink.widget;
    if (!widget || !m_window->isAncestorOf(widget) || !m_region.intersects(seen))
        return false;
    const QPoint corner = placeIn(m_window->window(), widget, widget->rect()).topLeft();
    return isEnabledAt(widget, seen.center() - corner);
}

// Of buttons and labels. An image as large as the widget is its ground, unless that is all of it.
bool Look::isIcon(int index) const
{
    const Ink &ink = m_bare.inks().at(index);
    if (ink.kind != Ink::Icon || !isOurs(ink) || ink.transparent < least_transparent
        || ink.transparent >= 1)
        return false;
    const QWidget *widget = ink.widget;
    const QSizeF mm = mmOf(ink.px.size());
    const bool is_mostly_seen = 2 * areaOf(ink.px & ink.clip) > areaOf(ink.px);
    if (!isIconHolder(widget) || !is_mostly_seen || qMax(mm.width(), mm.height()) > largest_icon_mm)
        return false;
    const QRect all = placeIn(m_window->window(), widget, widget->rect());
    const QVector<Ink> &inks = m_bare.inks();
    return !ink.px.contains(all) || std::count_if(inks.begin(), inks.end(), [&](const Ink &other) {
        return other.widget == ink.widget;
    }) == 1;
}

// What something else covers, such as a sheet over a page, is not seen at all.
bool Look::isShown(const Ink &ink)
{
    if (!m_marked)
        m_marked = std::make_unique<InkCanvas>(m_window, InkCanvas::MarkedTexts, m_region);
    return contrastBetween(*m_marked, m_bare, ink.px & ink.clip, 0, true).ratio > 0;
}

// A height in pt was cut to whole px.
bool Look::isLarge(const Ink &ink) const
{
    const double pt = (ink.font_px + 1) / double(ui::ScalingInfo::inst()->m_px_per_pt);
    return pt > m_limits.large_pt || (ink.is_bold && pt > m_limits.large_bold_pt);
}

void Look::checkText(const Ink &ink, QVector<Finding> *findings)
{
    const bool is_large = isLarge(ink);
    const double limit = is_large ? m_limits.error : m_limits.warning;
    const Contrast contrast
        = contrastBetween(m_solid, m_bare, ink.px & ink.clip, worst_tenth, false);
    if (contrast.ratio < limit && isShown(ink))
        complain(ink, contrast, limit, is_large ? "large text" : "text", findings);
}

void Look::checkIcons(QVector<Finding> *findings)
{
    QSet<int> icons;
    for (int i = 0; i < m_bare.inks().size(); ++i) {
        if (isIcon(i))
            icons.insert(i);
    }
    if (icons.isEmpty())
        return;
    const InkCanvas without(m_window, InkCanvas::WithoutIcons, m_region, icons);
    std::unique_ptr<const InkCanvas> marked; // made when it is needed
    const auto isSeen = [&](const QRect &px) {
        if (!marked)
            marked = std::make_unique<InkCanvas>(m_window, InkCanvas::MarkedIcons, m_region, icons);
        return contrastBetween(*marked, without, px, 0, true).ratio > 0;
    };
    for (const int index : qAsConst(icons)) {
        const Ink &ink = m_bare.inks().at(index);
        const QRect px = ink.px & ink.clip;
        Contrast contrast = contrastBetween(m_bare, without, px, strongest_twentieth, true);
        if (contrast.ratio == 0) // it looks like its ground, or is covered
            contrast = contrastBetween(m_bare, without, px, 0, false);
        if (contrast.ratio < icon_limit && isSeen(px))
            complain(ink, contrast, icon_limit, "icon", findings);
    }
}

// The first one, of a text the worst line, speaks for a widget in all of its states.
void Look::complain(const Ink &ink, const Contrast &contrast, double limit, const char *what,
    QVector<Finding> *findings) const
{
    const auto is_said = [&](const Finding &finding) { return finding.widget == ink.widget; };
    if (std::any_of(findings->begin(), findings->end(), is_said))
        return;
    const QString text
        = QStringLiteral("%1 %2 on %3 has a contrast of %4, less than %5%6")
              .arg(QLatin1String(what), QColor(contrast.ink).name(), QColor(contrast.ground).name())
              .arg(contrast.ratio, 0, 'f', 1)
              .arg(QString::number(limit), m_state);
    const QPoint corner = m_window->mapFrom(m_window->window(), ink.px.topLeft());
    findings->append(findingAt(ink.widget, QRect(corner, ink.px.size()), "contrast",
        contrast.ratio < m_limits.error || ink.kind == Ink::Icon ? Finding::Error
                                                                 : Finding::Warning,
        text));
}

QRegion placeOf(const QWidget *window)
{
    return placeIn(window->window(), window, window->rect()) & window->window()->rect();
}

} // namespace

QVector<Finding> PanelAudit::contrasts(QWidget *window, const ContrastLimits &limits)
{
    QVector<Finding> findings;
    if (!window || !window->isVisible())
        return findings;
    const QRegion all = placeOf(window);
    Look(window, all, limits, "").check(&findings);
    ButtonStates states(window);
    const QRegion buttons = states.places() & all;
    if (buttons.isEmpty())
        return findings;
    states.setDown(true);
    Look(window, buttons, limits, ", while down").check(&findings);
    states.restore();
    if (states.canCheck()) {
        states.flip();
        Look(window, buttons, limits, ", with its other check state").check(&findings);
        states.restore();
    }
    // Some take up their look in a paint only.
    const InkCanvas settled(window, InkCanvas::Everything, buttons);
    return findings;
}

} // namespace vexo::hox::qt::uitest
