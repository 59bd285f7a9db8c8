// SPDX-License-Identifier: MIT
#include "ui/painting/textrun_p.h"

#include "ui/painting/glyphextent_p.h"

#include <QTextOption>

#include <algorithm>

namespace vexo::hox::qt::ui {

namespace {

const double no_limit = 0x1000000; // px; the width of a line that is never broken

QString singleLine(QString text)
{
    const auto breaks = [](QChar c) {
        return c == QLatin1Char('\n') || c == QLatin1Char('\r') || c == QLatin1Char('\t')
            || c == QChar(QChar::LineSeparator) || c == QChar(QChar::ParagraphSeparator);
    };
    if (std::any_of(text.cbegin(), text.cend(), breaks))
        std::replace_if(text.begin(), text.end(), breaks, QLatin1Char(' '));
    return text;
}

} // namespace

void TextRun::set(const QString &text, const QFont &font, const Formats &formats)
{
    if (text == m_text && font == m_font && (!m_layout || formats == m_layout->formats()))
        return;
    m_text = text;
    m_font = font;
    m_advance = 0;
    m_layout.reset();
    if (!text.isEmpty())
        layOut(formats);
}

void TextRun::layOut(const Formats &formats)
{
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setWrapMode(QTextOption::NoWrap);
    option.setTextDirection(Qt::LayoutDirectionAuto); // that of the text, not of the application
    m_layout = std::make_unique<QTextLayout>(singleLine(m_text), m_font);
    m_layout->setTextOption(option);
    m_layout->setFormats(formats);
    m_layout->setCacheEnabled(true);
    m_layout->beginLayout();
    QTextLine line = m_layout->createLine();
    line.setLineWidth(no_limit);
    m_layout->endLayout();
    m_advance = qRound(line.horizontalAdvance());
}

void TextRun::draw(QPainter *painter, const QRectF &rect, Qt::Alignment alignment) const
{
    if (m_layout)
        m_layout->lineAt(0).draw(painter, topLeft(rect, alignment));
}

QRectF TextRun::inkRect(const QRectF &rect, Qt::Alignment alignment) const
{
    if (!m_layout)
        return QRectF();
    return glyphExtent(*m_layout).translated(topLeft(rect, alignment));
}

QPointF TextRun::topLeft(const QRectF &rect, Qt::Alignment alignment) const
{
    const QTextLine line = m_layout->lineAt(0);
    const double spare = rect.width() - line.horizontalAdvance();
    return QPointF(rect.x() + (alignment.testFlag(Qt::AlignHCenter) ? spare / 2 : 0),
        rect.y() + (rect.height() - line.height()) / 2);
}

} // namespace vexo::hox::qt::ui
