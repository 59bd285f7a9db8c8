#pragma once
// SPDX-License-Identifier: MIT

#include <QPixmap>
#include <QSize>

class QIcon;
class QPainter;
class QRect;
class QStyle;

namespace vexo::hox::qt::ui {

/// The image that a button shows. The rendering is kept until icon, size or pixel ratio change: an
/// icon composes a key and searches a cache each time it is asked.
class ShownImage
{
public:
    /// Draws \a icon in the middle of \a place, px.
    void draw(QPainter *painter, const QStyle &style, const QRect &place, const QIcon &icon);

private:
    QPixmap m_pixmap;
    QSize m_size; // px, for which it was made
    qint64 m_icon_key = 0;
};

} // namespace vexo::hox::qt::ui
