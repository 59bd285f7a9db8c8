#pragma once
// SPDX-License-Identifier: MIT

#include "ui/foundation/sharpicon_p.h"
#include "ui/painting/renderingpair_p.h"

#include <QLabel>

#include <tuple>

class QStyle;

namespace vexo::hox::qt::ui {

/// Pixels of the screen to one of \a painter: 1 where it copies pixels as they are.
double pixelRatio(const QPainter &painter);

/// \a pixmap for a dark ground; one for all who ask for that of the same rendering.
QPixmap inverted(const QPixmap &pixmap);

/// QStyle::drawItemPixmap(), but at ratios that are not whole the pixmap begins on a whole pixel of
/// the screen: between two of them one is left out.
void drawIconPixmap(QPainter *painter, const QStyle &style, const QRect &area, int alignment,
    const QPixmap &pixmap);

/// The pixmaps of an icon, or of the two of a blink: an icon composes a key and searches a cache
/// each time that it is asked for one. They follow the icon, its size and the painter by
/// themselves.
class IconRendering
{
public:
    /// Draws \a icon of \a px in the middle of \a area.
    void draw(QPainter *painter, const QStyle &style, const QRect &area, const QIcon &icon,
        const QSize &px);

private:
    LookPair<std::tuple<qint64, QSize, double>, QPixmap> m_pixmaps;
};

/// Moves and stretches \a painter by less than a pixel of the screen, so that \a area begins and
/// ends on whole ones: on those on which a widget of that rectangle is cut.
void stretchToScreen(QPainter *painter, const QRect &area);

/// A label that draws its pixmap by drawIconPixmap().
class IconLabel : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace vexo::hox::qt::ui
