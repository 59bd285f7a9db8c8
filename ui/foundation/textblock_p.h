#pragma once

#include <QFont>
#include <QRectF>
#include <QStaticText>

class QPainter;

namespace vexo::hox::qt::ui {

/// A text that is laid out once and drawn often. It looks as QPainter::drawText() draws it with a
/// rectangle and a text option of these alignment and wrap mode: plain, cut at the rectangle.
class TextBlock
{
public:
    explicit TextBlock(QTextOption::WrapMode wrap_mode = QTextOption::WordWrap);

    /// Draws \a text into \a area in the painter's font and pen. Lays out anew only when text,
    /// font, alignment or the width of the area have changed since the last call; but a text that
    /// does not fit into the area, each time.
    void draw(QPainter *painter, const QRectF &area, const QString &text, Qt::Alignment alignment);

private:
    bool isLaidOut(
        const QFont &font, double width, const QString &text, Qt::Alignment alignment) const;
    void layOut(const QFont &font, double width, const QString &text, Qt::Alignment alignment);
    double widestLine(const QFont &font, double width) const;
    QTextOption option(Qt::Alignment alignment) const;

    const QTextOption::WrapMode m_wrap_mode;
    QString m_source;
    QFont m_font;
    Qt::Alignment m_alignment;
    QStaticText m_text;
    bool m_is_static = false; // drawn from m_text
    double m_height = 0; // px
};

} // namespace vexo::hox::qt::ui
