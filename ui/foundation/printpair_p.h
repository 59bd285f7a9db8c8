#pragma once
// SPDX-License-Identifier: MIT

#include <QPaintEngine>
#include <QPixmap>
#include <QPixmapCache>
#include <QPoint>

#include <utility>

namespace vexo::hox::qt::ui {

/// Something drawn once, and the place to which it is copied, px.
struct Print
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

/// The prints of the two looks that were used last, such as up and down. They lie in the pixmap
/// cache, which drops what has not been used for long. \a Look tells with == what is drawn.
template <typename Look>
class PrintPair
{
public:
    PrintPair() = default;
    ~PrintPair() { forget(); }
    PrintPair(const PrintPair &) = delete;
    PrintPair &operator=(const PrintPair &) = delete;

    /// The print of \a look, which \a draw makes when there is none.
    template <typename Draw>
    Print get(const Look &look, Draw draw)
    {
        if (!(m_first.look == look))
            std::swap(m_first, m_second);
        Print print{ QPixmap(), m_first.position };
        if (m_first.look == look && QPixmapCache::find(m_first.key, &print.pixmap))
            return print;
        QPixmapCache::remove(m_first.key);
        print = draw();
        m_first = { look, print.position, QPixmapCache::insert(print.pixmap) };
        return print;
    }

    /// For changes of which the looks know nothing.
    void forget()
    {
        QPixmapCache::remove(m_first.key);
        QPixmapCache::remove(m_second.key);
        m_first = Entry();
        m_second = Entry();
    }

private:
    struct Entry
    {
        Look look;
        QPoint position;
        QPixmapCache::Key key;
    };

    Entry m_first; // the one used last
    Entry m_second;
};

} // namespace vexo::hox::qt::ui
