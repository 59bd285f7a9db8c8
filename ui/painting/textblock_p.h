#pragma once
// SPDX-License-Identifier: MIT

#include "ui/painting/renderingpair_p.h"

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QStaticText>

#include <tuple>

class QPainter;

namespace vexo::hox::qt::ui {

/// A text that is laid out once and drawn often. It looks as QPainter::drawText() draws it with a
/// rectangle and a text option of these alignment and wrap mode: plain, cut at the rectangle.
class TextBlock
{
public:
    /// An area of one opaque colour on which a text lies.
    struct Ground
    {
        QColor color;
        QRectF area;
    };

    explicit TextBlock(QTextOption::WrapMode wrap_mode = QTextOption::WordWrap);

    /// Default Qt::LayoutDirectionAuto: a text runs as its first letters do.
    void setDirection(Qt::LayoutDirection direction);

    /// Draws \a text into \a area in the painter's font and pen. Lays out anew only when text,
    /// font, alignment or the width of the area have changed since the last call; but a text that
    /// does not fit into the area, or that is found to run from right to left, each time.
    ///
    /// With a \a ground that is already drawn around the text, the text is kept together with it:
    /// to blend letters costs several times as much as to copy them.
    void draw(QPainter *painter, const QRectF &area, const QString &text, Qt::Alignment alignment,
        const Ground &ground = Ground());

private:
    // Ink, ground, part of a px by which the letters are shifted, device pixels per px.
    using Look = std::tuple<QColor, QColor, QPointF, double>;

    bool isLaidOut(
        const QFont &font, double width, const QString &text, Qt::Alignment alignment) const;
    void layOut(const QFont &font, double width, const QString &text, Qt::Alignment alignment);
    QTextOption option(Qt::Alignment alignment) const;
    bool isKept(const QPainter &painter, const QRect &place, const Ground &ground) const;
    Rendering renderingOf(const Look &look) const;

    const QTextOption::WrapMode m_wrap_mode;
    Qt::LayoutDirection m_direction = Qt::LayoutDirectionAuto;
    QString m_source;
    QFont m_font;
    Qt::Alignment m_alignment;
    QStaticText m_text;
    bool m_is_static = false; // drawn from m_text
    bool m_begins_right = false; // and is too long, so its left end is cut
    double m_height = 0; // px
    QRect m_extent; // px, what the letters cover
    RenderingPair<Look> m_renderings;
};

} // namespace vexo::hox::qt::ui
