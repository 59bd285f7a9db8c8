#pragma once
// SPDX-License-Identifier: MIT

#include <QFont>
#include <QRectF>
#include <QString>
#include <QTextLayout>
#include <QVector>

#include <memory>

class QPainter;

namespace vexo::hox::qt::ui {

/// One line of text, laid out once for its font and drawn as QPainter::drawText() draws it in a
/// rectangle, centred vertically, but without being cut there. Line breaks and tabs are blanks.
class TextRun
{
public:
    using Formats = QVector<QTextLayout::FormatRange>;

    /// Lays out, unless all is what it has. Parts of the text may have \a formats of their own.
    void set(const QString &text, const QFont &font, const Formats &formats = Formats());
    /// What the text moves on by, px, as QFontMetrics tells it.
    int advance() const { return m_advance; }
    /// Whether it runs from right to left, as its first letters do.
    bool isTurned() const { return m_text.isRightToLeft(); }
    /// With the painter's pen; \a alignment tells Qt::AlignHCenter from left.
    void draw(QPainter *painter, const QRectF &rect, Qt::Alignment alignment) const;
    /// What draw() touches, marks far above and below the line included.
    QRectF inkRect(const QRectF &rect, Qt::Alignment alignment) const;

private:
    void layOut(const Formats &formats);
    QPointF topLeft(const QRectF &rect, Qt::Alignment alignment) const;

    QString m_text;
    QFont m_font;
    std::unique_ptr<QTextLayout> m_layout; // null for an empty text
    int m_advance = 0;
};

} // namespace vexo::hox::qt::ui
