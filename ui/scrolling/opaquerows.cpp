// SPDX-License-Identifier: MIT
#include "ui/scrolling/opaquerows_p.h"

#include "ui/foundation/coverrule_p.h"

#include <QLayout>
#include <QPaintEvent>

namespace vexo::hox::qt::ui {

namespace {

const int rest_ms = 300; // longer than between two steps of a scroll

} // namespace

OpaqueRows::OpaqueRows(QWidget *content)
    : QObject(content)
    , m_content(content)
{
    content->installEventFilter(this);
}

bool OpaqueRows::eventFilter(QObject * /*watched*/, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Move:
        follow();
        break;
    case QEvent::LayoutRequest:
    case QEvent::Resize:
        end();
        break;
    case QEvent::Paint:
        if (m_is_claimed)
            reveal(bare(static_cast<QPaintEvent *>(event)->region()));
        break;
    default:
        break;
    }
    return false;
}

void OpaqueRows::timerEvent(QTimerEvent * /*event*/)
{
    if (!m_has_moved)
        end();
    m_has_moved = false;
}

void OpaqueRows::follow()
{
    if (m_content->isWindow())
        return;
    m_has_moved = true;
    if (!m_scrolling.isActive())
        m_scrolling.start(rest_ms, this);
    const QRect seen = m_content->parentWidget()->rect().translated(-m_content->pos());
    claim(bare(seen & m_content->rect()).isEmpty());
}

// Nothing of what lies below it is seen.
bool OpaqueRows::isOpaque(const QWidget &widget)
{
    return widget.isVisible() && widget.mask().isEmpty() && !widget.graphicsEffect()
        && CoverRule::coversAll(widget);
}

QRegion OpaqueRows::bare(const QRegion &area) const
{
    return area.isEmpty() || isHiddenByRows(area.boundingRect()) ? QRegion() : besideChildren(area);
}

// Of hundreds of rows, which lie below each other, a few must be looked at.
bool OpaqueRows::isHiddenByRows(const QRect &area) const
{
    const QLayout *rows = m_content->layout();
    const int count = rows ? rows->count() : 0;
    int hidden_to = area.top();
    for (int i = firstRow(area.top()); i < count; ++i) {
        const QWidget *row = rows->itemAt(i)->widget();
        if (!row || row->isHidden() || row->parentWidget() != m_content)
            continue;
        const QRect place = row->geometry();
        const bool is_wide = place.left() <= area.left() && place.right() >= area.right();
        if (!is_wide || place.top() > hidden_to || !isOpaque(*row))
            return false;
        hidden_to = qMax(hidden_to, place.bottom() + 1);
        if (hidden_to > area.bottom())
            return true;
    }
    return false;
}

// Of those that reach below \a top.
int OpaqueRows::firstRow(int top) const
{
    const QLayout *rows = m_content->layout();
    int first = 0;
    for (int beyond = rows ? rows->count() : 0; first < beyond;) {
        const int middle = (first + beyond) / 2;
        if (rows->itemAt(middle)->geometry().bottom() < top)
            first = middle + 1;
        else
            beyond = middle;
    }
    return first;
}

QRegion OpaqueRows::besideChildren(const QRegion &area) const
{
    QRegion bare = area;
    const QRect around = area.boundingRect();
    for (const QObject *child : m_content->children()) {
        const auto *widget = qobject_cast<const QWidget *>(child);
        if (widget && widget->geometry().intersects(around) && isOpaque(*widget))
            bare -= widget->geometry();
    }
    return bare;
}

void OpaqueRows::claim(bool is_covered)
{
    const bool is_opaque_anyway
        = !m_is_claimed && m_content->testAttribute(Qt::WA_OpaquePaintEvent);
    if (m_is_claimed == is_covered || is_opaque_anyway)
        return;
    m_content->setAttribute(Qt::WA_OpaquePaintEvent, is_covered);
    m_is_claimed = is_covered;
}

// The toolkit does not fill the ground of what counts as opaque.
void OpaqueRows::reveal(const QRegion &bare)
{
    if (bare.isEmpty())
        return;
    end();
    m_content->update(bare);
}

void OpaqueRows::end()
{
    m_scrolling.stop();
    claim(false);
}

} // namespace vexo::hox::qt::ui
