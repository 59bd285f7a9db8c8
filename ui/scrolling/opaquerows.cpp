#include "ui/scrolling/opaquerows_p.h"

#include "ui/buttons/vexofunctionbutton.h"

#include <QPaintEvent>

namespace vexo::hox::qt::ui {

namespace {

const int rest_ms = 300; // longer than between two steps of a scroll

QRegion opaqueRows(const QWidget &content)
{
    QRegion rows;
    for (const QObject *child : content.children()) {
        if (!child->isWidgetType())
            continue;
        const auto *row = static_cast<const QWidget *>(child);
        if (row->isVisible() && row->testAttribute(Qt::WA_OpaquePaintEvent) && row->mask().isEmpty()
            && !row->graphicsEffect())
            rows += row->geometry();
    }
    return rows;
}

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
            reveal(static_cast<QPaintEvent *>(event)->region());
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

void OpaqueRows::begin()
{
    m_opaque = opaqueRows(*m_content);
    m_rows.clear();
    for (QObject *child : m_content->children()) {
        if (auto *row = qobject_cast<VexoFunctionButton *>(child))
            m_rows += row;
    }
    m_scrolling.start(rest_ms, this);
}

void OpaqueRows::follow()
{
    if (m_content->isWindow())
        return;
    if (!m_scrolling.isActive())
        begin();
    m_has_moved = true;
    const QRect area = m_content->parentWidget()->rect().translated(-m_content->pos());
    for (const auto &guarded : qAsConst(m_rows)) {
        if (VexoFunctionButton *row = guarded.data())
            row->setSeen(
                area.top() <= row->geometry().bottom() && row->geometry().top() <= area.bottom());
    }
    claim((QRegion(area & m_content->rect()) - m_opaque).isEmpty());
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

// Only what no opaque row hides is painted: one of them is none any more.
void OpaqueRows::reveal(const QRegion &bare)
{
    end();
    m_content->update(bare);
}

void OpaqueRows::end()
{
    m_scrolling.stop();
    claim(false);
    for (const auto &guarded : qAsConst(m_rows)) {
        if (VexoFunctionButton *row = guarded.data())
            row->setSeen(true);
    }
    m_rows.clear();
}

} // namespace vexo::hox::qt::ui
