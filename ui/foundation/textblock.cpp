#include "ui/foundation/textblock_p.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

namespace vexo::hox::qt::ui {

namespace {

// What drawText() makes of control characters; a static text takes them as they are.
QString drawnCharacters(QString text)
{
    text.replace(QLatin1Char('\t'), QLatin1Char(' '));
    text.replace(QLatin1Char('\r'), QLatin1Char(' '));
    return text.replace(QLatin1Char('\n'), QChar::LineSeparator);
}

} // namespace

TextBlock::TextBlock(QTextOption::WrapMode wrap_mode)
    : m_wrap_mode(wrap_mode)
{
    m_text.setTextFormat(Qt::PlainText);
}

void TextBlock::draw(
    QPainter *painter, const QRectF &area, const QString &text, Qt::Alignment alignment)
{
    if (text.isEmpty() || area.isEmpty())
        return;
    if (!isLaidOut(painter->font(), area.width(), text, alignment))
        layOut(painter->font(), area.width(), text, alignment);
    if (!m_is_static || m_height > area.height()) {
        painter->drawText(area, text, option(alignment));
        return;
    }
    double top = area.top();
    if (alignment & Qt::AlignBottom)
        top = area.bottom() - m_height;
    else if (alignment & Qt::AlignVCenter)
        top += (area.height() - m_height) / 2;
    painter->drawStaticText(QPointF(area.left(), top), m_text);
}

bool TextBlock::isLaidOut(
    const QFont &font, double width, const QString &text, Qt::Alignment alignment) const
{
    return m_source == text && m_text.textWidth() == width && m_alignment == alignment
        && m_font == font;
}

void TextBlock::layOut(
    const QFont &font, double width, const QString &text, Qt::Alignment alignment)
{
    m_source = text;
    m_font = font;
    m_alignment = alignment;
    // Left is left also for a text that runs from right to left.
    m_text.setTextOption(option(alignment | Qt::AlignAbsolute));
    m_text.setText(drawnCharacters(text));
    m_text.setTextWidth(width);
    m_text.prepare(QTransform(), font);
    // A static text counts the leading of its last line, drawText() does not.
    m_height = m_text.size().height() - qMax(0.0, QFontMetricsF(font).leading());
    // drawText() cuts the ends of a line that is too long, and justifies in a way of its own.
    m_is_static = widestLine(font, width) <= width && !(alignment & Qt::AlignJustify);
}

double TextBlock::widestLine(const QFont &font, double width) const
{
    double widest = 0;
    QTextLayout layout(m_text.text(), font);
    layout.setTextOption(m_text.textOption());
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        widest = qMax(widest, line.naturalTextWidth());
    }
    layout.endLayout();
    return widest;
}

QTextOption TextBlock::option(Qt::Alignment alignment) const
{
    QTextOption option(alignment);
    option.setWrapMode(m_wrap_mode);
    return option;
}

} // namespace vexo::hox::qt::ui
