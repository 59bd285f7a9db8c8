// SPDX-License-Identifier: MIT
#include "ui/input/fieldcontent_p.h"

#include "ui/foundation/scalinginfo.h"
#include "ui/input/fieldlook_p.h"

#include <QPainter>

namespace vexo::hox::qt::ui {

void FieldContent::draw(QPainter *painter, const FieldLook &look)
{
    if (m_shake.isShaking())
        m_shake.addArea(area(look));
    if (!showsDots(look)) {
        drawText(painter, look);
        return;
    }
    m_shake.note(look.text.size());
    if (look.tells_length)
        m_dots.draw(painter, dotRects(look), look.outline, look.ink);
}

QRect FieldContent::blinkArea(const FieldLook &look) const
{
    const QRect all(QPoint(), look.size);
    if (showsDots(look) || (m_shake.isShaking() && !look.is_centered))
        return QRect(); // there is no cursor
    if (look.is_centered || look.cursorX(textRect(look)) != m_cursor_x)
        return all; // centred text moves with the cursor
    const QLine line = look.cursorLine(m_cursor_x);
    const int seam = look.cursor.width() / 2 + 1;
    return QRect(line.p1(), line.p2()).adjusted(-seam, -seam, seam, seam);
}

QRect FieldContent::step(const FieldLook &look)
{
    if (!m_shake.step())
        return QRect(QPoint(), look.size);
    return m_shake.takeArea() | area(look);
}

// A text may have become secret while it shakes.
bool FieldContent::showsDots(const FieldLook &look) const
{
    return look.is_secret || (m_shake.isShaking() && !m_shake.showsText());
}

QVector<QRectF> FieldContent::dotRects(const FieldLook &look) const
{
    const int count = m_shake.isShaking() ? m_shake.dots() : look.text.size();
    return SecretDots::rects(*ScalingInfo::inst(), look.size, look.dots_left, m_shake.offset(),
        count, look.has_centered_dots);
}

QRectF FieldContent::textRect(const FieldLook &look) const
{
    std::optional<int> placeholder_width;
    if (m_shows_placeholder)
        placeholder_width = m_shake.isShaking() ? 0 : m_text.placeholder().advance();
    return look.textRect(m_text.run(), placeholder_width).translated(m_shake.offset(), 0);
}

void FieldContent::layOut(const FieldLook &look)
{
    if (m_shake.isShaking()) {
        m_text.layOutAlone(m_shake.text(), look.font);
    } else {
        m_text.layOut(look.text, look.font);
        m_shows_placeholder = m_text.hasPlaceholder();
    }
}

QRect FieldContent::area(const FieldLook &look)
{
    QRectF area;
    if (showsDots(look)) {
        const QVector<QRectF> dots = dotRects(look);
        const double seam = look.outline.widthF() / 2 + 1;
        for (const QRectF &dot : dots)
            area |= dot.adjusted(-seam, -seam, seam, seam);
    } else {
        layOut(look);
        area = m_text.run().inkRect(textRect(look), look.alignment());
    }
    return (area & QRectF(QPointF(), look.size)).toAlignedRect();
}

void FieldContent::drawText(QPainter *painter, const FieldLook &look)
{
    m_shake.note(look.text);
    layOut(look);
    const QRectF rect = textRect(look);
    painter->setPen(look.ink);
    m_text.run().draw(painter, rect, look.alignment());
    if (!m_shake.isShaking())
        drawBesideText(painter, look, rect);
}

void FieldContent::drawBesideText(QPainter *painter, const FieldLook &look, QRectF rect)
{
    m_cursor_x = look.cursorX(rect);
    if (look.has_cursor) {
        painter->setPen(look.cursor);
        painter->drawLine(look.cursorLine(m_cursor_x));
    }
    if (m_shows_placeholder) {
        rect.setLeft(m_cursor_x);
        rect.setWidth(m_text.placeholder().advance());
        painter->setPen(look.placeholder);
        m_text.placeholder().draw(painter, rect, Qt::AlignLeft | Qt::AlignVCenter);
    }
}

} // namespace vexo::hox::qt::ui
