#pragma once
// SPDX-License-Identifier: MIT

#include "ui/painting/renderingcache_p.h"

#include <QPaintEngine>
#include <QPixmap>
#include <QPoint>

#include <utility>

namespace vexo::hox::qt::ui {

/// Something drawn once, and the place to which it is copied, px.
struct Rendering
{
    QPixmap pixmap;
    QPoint position;
};

/// Whether a print may stand in for what it shows: a text stays one in a PDF, and for a test that
/// asks what is drawn.
inline bool isForScreens(const QPaintEngine &engine)
{
    return engine.type() == QPaintEngine::Raster;
}

/// The prints of the two looks that were used last, such as up and down, as long as the
/// RenderingCache keeps them. \a Look tells with == what is drawn.
template <typename Look>
class RenderingPair
{
public:
    RenderingPair() = default;
    ~RenderingPair() { forget(); }
    RenderingPair(const RenderingPair &) = delete;
    RenderingPair &operator=(const RenderingPair &) = delete;

    /// The print of \a look for \a owner, which \a draw makes when there is none.
    template <typename Draw>
    Rendering get(const Look &look, const QWidget *owner, Draw draw)
    {
        if (!(m_first.look == look))
            std::swap(m_first, m_second);
        RenderingCache &store = RenderingCache::inst();
        Rendering print{ QPixmap(), m_first.position };
        if (m_first.look == look && store.find(m_first.key, &print.pixmap))
            return print;
        store.remove(m_first.key);
        print = draw();
        m_first = { look, print.position, store.insert(print.pixmap, owner) };
        return print;
    }

    /// For changes of which the looks know nothing.
    void forget()
    {
        RenderingCache::inst().remove(m_first.key);
        RenderingCache::inst().remove(m_second.key);
        m_first = Entry();
        m_second = Entry();
    }

private:
    struct Entry
    {
        Look look;
        QPoint position;
        RenderingCache::Key key = 0;
    };

    Entry m_first; // the one used last
    Entry m_second;
};

} // namespace vexo::hox::qt::ui
