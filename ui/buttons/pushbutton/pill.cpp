// SPDX-License-Identifier: MIT
#include "ui/buttons/pushbutton/pill_p.h"

#include <QDataStream>
#include <QIODevice>
#include <QPainter>
#include <QPainterPath>

#include <utility>

namespace vexo::hox::qt::ui {

namespace {

void drawWhole(QPainter *painter, const Pill::Look &look, const QSizeF &size)
{
    QPainterPath path;
    path.addRoundedRect(
        look.inside(size), look.radius.width(), look.radius.height(), Qt::AbsoluteSize);
    painter->fillPath(path, look.fill);
    painter->strokePath(path, look.outline);
}

QString nameOf(const Pill::Look &look)
{
    QByteArray name;
    QDataStream stream(&name, QIODevice::WriteOnly);
    stream << look.margin << look.radius << look.fill << look.outline;
    return QLatin1String("Pill ") + QString::fromLatin1(name.toBase64());
}

} // namespace

bool Pill::Look::isSame(const Look &other) const
{
    return margin == other.margin && radius == other.radius && fill == other.fill
        && outline == other.outline;
}

QRectF Pill::Look::inside(const QSizeF &size) const
{
    return QRectF(QPointF(), size)
        .adjusted(margin.width(), margin.height(), -margin.width(), -margin.height());
}

QRectF Pill::Look::evenArea(const QSizeF &size) const
{
    const double line = outline.widthF() + 1;
    const QRectF even = inside(size).adjusted(radius.width(), line, -radius.width(), -line);
    return even.isValid() ? even : QRectF(); // one that is inside out would be filled
}

void Pill::draw(QPainter *painter, const QSize &size, const Look &look, const QRect &dirty)
{
    if (look.inside(size).isEmpty())
        return;
    if (!m_now || !m_now->look.isSame(look))
        std::swap(m_now, m_before);
    if (!m_now || !m_now->look.isSame(look))
        m_now = std::make_unique<Kept>(Kept{ look, EndsPrint() });
    const double end = look.margin.width() + look.radius.width() + look.outline.widthF();
    m_now->ends.draw(
        painter, size, end, dirty, [&](QPainter *to, const QSizeF &px) { drawWhole(to, look, px); },
        [&] { return nameOf(look); });
}

} // namespace vexo::hox::qt::ui
