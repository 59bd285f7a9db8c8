#pragma once
// SPDX-License-Identifier: MIT

#include "uitest/widgetwalk_p.h"

#include <QHash>
#include <QRegion>
#include <QSet>

namespace vexo::hox::qt::uitest {

/// Which widget a press at a place of a window gets to, for all places: as QWidget::childAt() and
/// the toolkit's way of handing an unhandled press to the parent decide it, but as regions.
/// Reckoned once; widgets must not change meanwhile.
class ReachMap
{
public:
    /// \a targets take a press themselves; what another widget gets goes to the next one above it.
    ReachMap(const QWidget *window, const QSet<const QWidget *> &targets);

    /// Where a press gets to \a target, px of the window; also where it is scrolled out of sight.
    /// Of a part cut off by a mask of its own the whole is meant: a round button is as wide as
    /// high.
    QRegion reach(const QWidget *target) const;
    /// Nothing is larger than what it is scrolled in: px of the largest area that can be seen.
    QSize limit(const QWidget *target) const;
    /// The innermost scrolled viewport around \a target, null if there is none. Distances between
    /// targets count only within one.
    const QWidget *sheet(const QWidget *target) const;

private:
    using Reach = QHash<const QWidget *, QRegion>;

    void claim(const QWidget *widget, QRegion clip, const QWidget *owner, Reach *reach);
    void claimChildren(const QWidget *widget, QRegion *clip, const QWidget *owner, Reach *reach);
    const QWidget *ownerOf(const QWidget *widget, const QWidget *above) const;
    void addSheet(const QWidget *viewport);

    const QWidget *const m_window;
    const QSet<const QWidget *> m_targets;
    Reach m_reach;
    QHash<const QWidget *, QRegion> m_shown; // of viewports
    QHash<const QWidget *, const QWidget *> m_owners; // of what viewports themselves do not take
};

/// The rectangle in \a region that is largest in its smaller direction, in mm; of those the one
/// with the largest area.
QRect widestRect(const QRegion &region);

} // namespace vexo::hox::qt::uitest
