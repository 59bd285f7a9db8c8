// SPDX-License-Identifier: MIT
#include "ui/buttons/pushbutton/labellines_p.h"

#include <QFontMetrics>

namespace vexo::hox::qt::ui {

QString fittingBeginning(const QFontMetrics &metrics, const QString &text, double width_px)
{
    const auto fits
        = [&](int length) { return metrics.boundingRect(text.left(length)).width() <= width_px; };
    // Removing one character after the other would measure a long text thousands of times. Longer
    // beginnings are wider, but for a few pixels: a letter may join the one before.
    const int joined = 8;
    int low = 0;
    for (int high = text.length(); low < high;) {
        const int middle = high - (high - low) / 2;
        if (fits(middle))
            low = middle;
        else
            high = middle - 1;
    }
    int length = qMin(low + joined, text.length());
    while (length > low && !fits(length))
        --length;
    const bool is_in_pair = length > 0 && length < text.length()
        && text.at(length - 1).isHighSurrogate() && text.at(length).isLowSurrogate();
    return text.left(is_in_pair ? length - 1 : length);
}

void LabelLines::measure(const QString &label, const QString &right_text, const QFont &font)
{
    if (m_label_px >= 0 && m_label == label && m_right_text == right_text && m_font == font)
        return;
    const QFontMetrics metrics(font);
    *this = LabelLines();
    m_label = label;
    m_right_text = right_text;
    m_font = font;
    m_label_px = metrics.boundingRect(label).width();
    m_right_px = metrics.boundingRect(right_text).width();
    m_right_advance_px = metrics.horizontalAdvance(right_text);
}

bool LabelLines::areTwo(int width_px, int margin_px) const
{
    return width_px - m_right_px - 3 * margin_px <= m_label_px;
}

// What was measured to fit on one line stays there: its advance may be a fraction wider, for which
// the toolkit would wrap it.
void LabelLines::split(double width_px)
{
    if (m_split_px == width_px)
        return;
    m_split_px = width_px;
    const QFontMetrics metrics(m_font);
    m_first = fittingBeginning(metrics, m_label, width_px);
    m_second = m_label.mid(m_first.length());
    m_is_second_fitting = metrics.boundingRect(m_second).width() <= width_px;
}

} // namespace vexo::hox::qt::ui
