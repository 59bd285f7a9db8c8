// SPDX-License-Identifier: MIT
#include "ui/painting/textblock_p.h"

#include "ui/foundation/pixels_p.h"
#include "ui/painting/glyphextent_p.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>
#include <QWidget>

#include <cmath>

namespace vexo::hox::qt::ui {

namespace {

// What drawText() makes of control characters; a static text takes them as they are.
QString drawnCharacters(QString text)
{
    text.replace(QLatin1Char('\t'), QLatin1Char(' '));
    text.replace(QLatin1Char('\r'), QLatin1Char(' '));
    return text.replace(QLatin1Char('\n'), QChar::LineSeparator);
}

const Qt::Alignment not_left = Qt::AlignRight | Qt::AlignHCenter | Qt::AlignJustify;

Qt::Alignment atRight(Qt::Alignment alignment)
{
    return (alignment & ~Qt::AlignLeft) | Qt::AlignRight | Qt::AlignAbsolute;
}

// One below the other, as in a static text. Returns the width that they cover together, px.
double layOutLines(QTextLayout *layout, double width)
{
    const double leading = QFontMetricsF(layout->font()).leading();
    QRectF covered;
    double y = 0;
    layout->beginLayout();
    for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
        line.setLineWidth(width);
        line.setPosition(QPointF(0, y));
        y += line.height() + leading;
        covered |= line.naturalTextRect();
    }
    layout->endLayout();
    return covered.width();
}

} // namespace

TextBlock::TextBlock(QTextOption::WrapMode wrap_mode)
    : m_wrap_mode(wrap_mode)
{
    m_text.setTextFormat(Qt::PlainText);
}

void TextBlock::setDirection(Qt::LayoutDirection direction)
{
    if (m_direction == direction)
        return;
    m_direction = direction;
    m_source.clear(); // lays out anew
}

void TextBlock::draw(QPainter *painter, const QRectF &area, const QString &text,
    Qt::Alignment alignment, const Ground &ground)
{
    if (text.isEmpty() || area.isEmpty())
        return;
    if (!isLaidOut(painter->font(), area.width(), text, alignment))
        layOut(painter->font(), area.width(), text, alignment);
    const bool is_screen = isForScreens(*painter->paintEngine());
    if (!m_is_static || m_height > area.height() || !is_screen) {
        painter->drawText(area, text, option(m_begins_right ? atRight(alignment) : alignment));
        return;
    }
    QPointF position = area.topLeft();
    if (alignment & Qt::AlignBottom)
        position.setY(area.bottom() - m_height);
    else if (alignment & Qt::AlignVCenter)
        position.setY(area.top() + (area.height() - m_height) / 2);
    const QPoint whole(int(std::floor(position.x())), int(std::floor(position.y())));
    if (!isKept(*painter, m_extent.translated(whole), ground)) {
        painter->drawStaticText(position, m_text);
        return;
    }
    const Look look(painter->pen().color(), ground.color, position - whole,
        painter->device()->devicePixelRatioF());
    const auto *owner = dynamic_cast<const QWidget *>(painter->device());
    const Rendering &kept = m_renderings.get(look, owner, [&] { return renderingOf(look); });
    painter->drawPixmap(whole + kept.position, kept.pixmap);
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
    QTextLayout layout(m_text.text(), font);
    layout.setTextOption(m_text.textOption());
    layout.setCacheEnabled(true); // else it would be shaped once more for its extent
    const double widest = layOutLines(&layout, width);
    // drawText() cuts the ends of a line that is too long, and has ways of its own to justify and
    // to place the blanks at the ends of lines that it finds to run from right to left.
    const bool is_turned = m_direction == Qt::RightToLeft
        || (m_direction == Qt::LayoutDirectionAuto && text.isRightToLeft());
    m_is_static = widest <= width && !(alignment & Qt::AlignJustify) && !is_turned;
    m_begins_right = widest > width && is_turned && !(alignment & not_left);
    m_extent = glyphExtent(layout).toAlignedRect();
    m_renderings.forget();
}

QTextOption TextBlock::option(Qt::Alignment alignment) const
{
    QTextOption option(alignment);
    option.setWrapMode(m_wrap_mode);
    option.setTextDirection(m_direction);
    return option;
}

bool TextBlock::isKept(const QPainter &painter, const QRect &place, const Ground &ground) const
{
    return ground.color.isValid() && ground.color.alpha() == 255 && ground.area.contains(place)
        && painter.deviceTransform().type() <= QTransform::TxTranslate
        && isKeepable(m_extent.size());
}

Rendering TextBlock::renderingOf(const Look &look) const
{
    const auto &[ink, ground, fraction, ratio] = look;
    const QPointF position = fraction - m_extent.topLeft();
    const auto draw = [&, &pen = ink](QPainter *painter) {
        painter->setFont(m_font);
        painter->setPen(pen);
        painter->drawStaticText(position, m_text);
    };
    return { rendered(m_extent.size(), ratio, draw, ground), m_extent.topLeft() };
}

} // namespace vexo::hox::qt::ui
