#pragma once
// SPDX-License-Identifier: MIT

#include "ui/painting/endsprint_p.h"

#include <QColor>
#include <QPen>
#include <QRectF>
#include <QSizeF>

#include <memory>

class QPainter;

namespace vexo::hox::qt::ui {

/// A filled and outlined pill. Its ends are kept for the looks of now and before, such as down and
/// up.
class Pill
{
public:
    struct Look
    {
        QSizeF margin; // px, from the widget's edges to the middle of the outline
        QSizeF radius; // px
        QColor fill;
        QPen outline;

        bool isSame(const Look &other) const;
        /// px, in a widget of \a size.
        QRectF inside(const QSizeF &size) const;
        /// Where it is nothing but filled: between round ends and outlines, px; may be empty.
        QRectF evenArea(const QSizeF &size) const;
    };

    /// Draws what is \a dirty, px, of the pill of a widget of \a size px; nothing if all of that is
    /// margin. \a painter must antialias.
    void draw(QPainter *painter, const QSize &size, const Look &look, const QRect &dirty);

private:
    struct Kept
    {
        Look look;
        EndsPrint ends;
    };

    std::unique_ptr<Kept> m_now;
    std::unique_ptr<Kept> m_before;
};

} // namespace vexo::hox::qt::ui
