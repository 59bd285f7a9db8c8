// SPDX-License-Identifier: MIT
#include "ui/buttons/pushbutton/buttontexts_p.h"

#include <QPainter>

namespace vexo::hox::qt::ui {

bool ButtonTexts::hasTwoLines(const TextContent &content, int width_px)
{
    m_lines.measure(content.label, content.right_text, content.font);
    return m_lines.areTwo(width_px, content.margin);
}

void ButtonTexts::draw(
    QPainter *painter, const TextContent &content, const QSize &size, const TextPlace &whole)
{
    painter->setPen(content.ink);
    const bool has_two_lines = hasTwoLines(content, size.width());
    const int middle = size.height() / 2;
    TextPlace label = withinMargins(whole, content.margin);
    if (!content.right_text.isEmpty()) {
        TextPlaces places = sideBySide(whole, content.margin, m_lines.rightTextAdvance());
        if (has_two_lines)
            places.right.area.setTop(middle);
        drawText(painter, &m_right_text, content.right_text, places.right, content.alignment);
        label = places.label;
    }
    if (has_two_lines)
        drawTwoLines(painter, label, middle, content.alignment);
    else
        drawText(painter, &m_wrapped_text, content.label, label, content.alignment);
}

void ButtonTexts::drawTwoLines(
    QPainter *painter, const TextPlace &place, int middle_px, Qt::Alignment alignment)
{
    m_lines.split(place.area.width());
    drawText(painter, &m_first_line, m_lines.first(), upperPart(place, middle_px), alignment);
    drawText(painter, m_lines.isSecondFitting() ? &m_second_line : &m_wrapped_text,
        m_lines.second(), lowerPart(place, middle_px), alignment);
}

void ButtonTexts::drawText(QPainter *painter, std::unique_ptr<TextBlock> *block,
    const QString &text, const TextPlace &place, Qt::Alignment alignment)
{
    if (text.isEmpty())
        return;
    if (!*block)
        *block = std::make_unique<TextBlock>(
            block == &m_wrapped_text ? QTextOption::WordWrap : QTextOption::NoWrap);
    (*block)->draw(painter, place.area, text, alignment, place.ground);
}

} // namespace vexo::hox::qt::ui
