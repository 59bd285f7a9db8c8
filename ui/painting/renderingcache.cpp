// SPDX-License-Identifier: MIT
#include "ui/painting/renderingcache_p.h"

#include "ui/foundation/shownpart_p.h"

#include <QPixmapCache>

#include <iterator>
#include <unordered_set>

namespace vexo::hox::qt::ui {

namespace {

using All = std::unordered_set<RenderingCache::WhileSeen *>;

// Never destroyed, since a widget of static storage may be destroyed later.
All &all()
{
    static auto *const renderings = new All;
    return *renderings;
}

qint64 bytesOf(const QPixmap &pixmap)
{
    return qint64(pixmap.width()) * pixmap.height() * pixmap.depth() / 8;
}

} // namespace

QPixmap RenderingCache::shared(const QString &name, const std::function<QPixmap()> &make)
{
    QPixmap pixmap;
    if (QPixmapCache::find(name, &pixmap))
        return pixmap;
    pixmap = make();
    QPixmapCache::insert(name, pixmap);
    return pixmap;
}

RenderingCache::WhileSeen::~WhileSeen()
{
    if (m_rendering)
        all().erase(this);
}

void RenderingCache::WhileSeen::keep(const Rendering &rendering, const QWidget *owner)
{
    const qint64 most_bytes = 1 << 20;
    static qint64 drawn_bytes = 0; // since those out of sight were dropped
    if (drawn_bytes > most_bytes) {
        for (auto each = all().begin(); each != all().end();)
            each = (*each)->dropIfUnseen() ? all().erase(each) : std::next(each);
        drawn_bytes = 0;
    }
    drawn_bytes += bytesOf(rendering.pixmap);
    m_rendering = rendering;
    m_owner = owner;
    all().insert(this);
}

bool RenderingCache::WhileSeen::dropIfUnseen()
{
    const QWidget *const owner = m_owner;
    if (owner && owner->isVisible() && !shownPart(*owner).isEmpty())
        return false;
    m_rendering.reset();
    return true;
}

} // namespace vexo::hox::qt::ui
