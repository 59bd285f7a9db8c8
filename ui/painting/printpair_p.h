#pragma once
// SPDX-License-Identifier: MIT

#include "ui/painting/printstore_p.h"

#include <QPaintEngine>
#include <QPixmap>
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

/// The prints of the two looks that were used last, such as up and down, as long as the PrintStore
/// keeps them. \a Look tells with == what is drawn.
template <typename Look>
class PrintPair
{
public:
    PrintPair() = default;
    ~PrintPair() { forget(); }
    PrintPair(const PrintPair &) = delete;
    PrintPair &operator=(const PrintPair &) = delete;

    /// The print of \a look for \a owner, which \a draw makes when there is none.
    template <typename Draw>
    Print get(const Look &look, const QWidget *owner, Draw draw)
    {
        if (!(m_first.look == look))
            std::swap(m_first, m_second);
        PrintStore &store = PrintStore::inst();
        Print print{ QPixmap(), m_first.position };
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
        PrintStore::inst().remove(m_first.key);
        PrintStore::inst().remove(m_second.key);
        m_first = Entry();
        m_second = Entry();
    }

private:
    struct Entry
    {
        Look look;
        QPoint position;
        PrintStore::Key key = 0;
    };

    Entry m_first; // the one used last
    Entry m_second;
};

} // namespace vexo::hox::qt::ui
