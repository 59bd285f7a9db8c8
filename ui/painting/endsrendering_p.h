#pragma once
// SPDX-License-Identifier: MIT

#include <QPixmap>
#include <QRect>
#include <QSizeF>
#include <QString>
#include <QTransform>

#include <functional>

class QPainter;

namespace vexo::hox::qt::ui {

/// A shape that is even between its left and its right end, such as a pill. The ends are rendered
/// once for their place among the device's pixels, and shared by all that look alike; between them
/// each row is one colour and is filled. So a long shape keeps no more than a short one, and is as
/// sharp as the device at each pixel ratio. Another look needs another object.
class EndsRendering
{
public:
    /// Draws the shape for a widget of that size, px.
    using DrawShape = std::function<void(QPainter *painter, const QSizeF &size)>;

    /// Draws what is \a dirty, px, of the shape of a widget of \a size px; \a end px from either
    /// side on it is even. \a painter must antialias. \a look names all that \a draw_shape draws,
    /// with a word for its kind first; it is asked only when the ends are made.
    void draw(QPainter *painter, const QSize &size, double end, const QRect &dirty,
        const DrawShape &draw_shape, const std::function<QString()> &look);

private:
    void drawPixels(QPainter *painter, const QRect &place, int end, const QRect &dirty) const;
    void fillRows(QPainter *painter, const QRect &part, int top, int column) const;

    QPixmap m_ends; // of a shape with one even column between them, device pixels
    QSizeF m_size; // of its widget, px
    QTransform m_to_ends; // from that to device pixels
};

} // namespace vexo::hox::qt::ui
