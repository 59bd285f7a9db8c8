// SPDX-License-Identifier: MIT
#include "ui/painting/renderingcache_p.h"

#include "ui/foundation/shownpart_p.h"

namespace vexo::hox::qt::ui {

namespace {

const qint64 growth_bytes = 1 << 20;

qint64 bytesOf(const QPixmap &print)
{
    return qint64(print.width()) * print.height() * print.depth() / 8;
}

} // namespace

// Never destroyed, since a widget of static storage may be destroyed later; it holds nothing by
// then.
RenderingCache &RenderingCache::inst()
{
    static auto *const store = new RenderingCache;
    return *store;
}

bool RenderingCache::find(Key key, QPixmap *print) const
{
    const auto entry = m_entries.constFind(key);
    if (entry == m_entries.constEnd())
        return false;
    *print = entry->print;
    return true;
}

RenderingCache::Key RenderingCache::insert(const QPixmap &print, const QWidget *owner)
{
    if (m_bytes > m_swept_bytes + growth_bytes)
        sweep();
    m_bytes += bytesOf(print);
    m_entries.insert(++m_last, { print, owner });
    return m_last;
}

void RenderingCache::remove(Key key)
{
    const auto entry = m_entries.find(key);
    if (entry == m_entries.end())
        return;
    m_bytes -= bytesOf(entry->print);
    m_swept_bytes = qMin(m_swept_bytes, m_bytes);
    m_entries.erase(entry);
}

void RenderingCache::sweep()
{
    for (auto entry = m_entries.begin(); entry != m_entries.end();) {
        const QWidget *owner = entry->owner;
        if (owner && owner->isVisible() && !shownPart(*owner).isEmpty()) {
            ++entry;
            continue;
        }
        m_bytes -= bytesOf(entry->print);
        entry = m_entries.erase(entry);
    }
    m_swept_bytes = m_bytes;
}

} // namespace vexo::hox::qt::ui
