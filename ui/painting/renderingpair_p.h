#pragma once
// SPDX-License-Identifier: MIT

#include "ui/painting/renderingcache_p.h"

#include <memory>
#include <utility>

namespace vexo::hox::qt::ui {

/// What a widget keeps for the two looks that were used last: a press changes looks back and forth.
/// \a Look tells with == all that can change; for the rest there is forget().
template <typename Look, typename Kept>
class LookPair
{
public:
    /// Of \a look; Kept() where it is another one.
    Kept &of(const Look &look)
    {
        if (m_first && m_first->look == look)
            return m_first->kept;
        std::swap(m_first, m_second);
        if (!m_first || !(m_first->look == look))
            m_first.reset(new Entry{ look, Kept() });
        return m_first->kept;
    }
    void forget()
    {
        m_first.reset();
        m_second.reset();
    }

private:
    struct Entry
    {
        Look look;
        Kept kept;
    };

    std::unique_ptr<Entry> m_first; // the one used last
    std::unique_ptr<Entry> m_second;
};

/// The renderings of two looks, as long as the widget is seen.
template <typename Look>
class RenderingPair
{
public:
    /// Of \a look, which \a owner shows; \a make makes it when there is none. Valid until the next
    /// call of anything here.
    template <typename Make>
    const Rendering &get(const Look &look, const QWidget *owner, const Make &make)
    {
        RenderingCache::WhileSeen &kept = m_kept.of(look);
        if (!kept.rendering())
            kept.keep(make(), owner);
        return *kept.rendering();
    }
    /// For changes of which the looks know nothing.
    void forget() { m_kept.forget(); }

private:
    LookPair<Look, RenderingCache::WhileSeen> m_kept;
};

} // namespace vexo::hox::qt::ui
