// SPDX-License-Identifier: MIT
// Where things lie and how they are drawn; the rest of the class is in vexolineedit.cpp.
#include "ui/input/vexolineedit.h"

#include "ui/foundation/pixels_p.h"
#include "ui/input/composedtext_p.h"
#include "ui/input/placeholder_p.h"
#include "ui/input/shakemotion_p.h"
#include "ui/painting/roundedframe_p.h"
#include "ui/painting/secretdots_p.h"
#include "ui/painting/textrun_p.h"

#include <QLabel>
#include <QPaintEvent>
#include <QWidgetAction>

namespace vexo::hox::qt::ui {

QRectF VexoLineEdit::textRect(int advance, int placeholder_advance, int dx) const
{
    const int indent = pxX(*m_scaling, m_cursor_mm_indent);
    const int offset = pxX(*m_scaling, m_left_offset_mm);
    const double inset = finitePx(m_scaling->mm2px_X(float(m_mm_radius))) + m_px_margin.x();
    const QLabel *const label = m_leading_action ? m_leading_label.data() : nullptr;
    double x = dx;
    if (m_draw_centered) {
        int left = width() / 2 - advance / 2;
        if (m_cursor_visible)
            left -= (m_cursor_pen.width() + indent) / 2;
        if (m_show_placeholder)
            left -= (indent + placeholder_advance) / 2;
        x += left;
    } else if (label) {
        x += label->x() + pxX(*m_scaling, m_mm_leading_icon_size.width()) + offset;
    } else {
        x += inset + offset;
    }
    if (!m_draw_centered && m_text_run->isTurned()) // one that is too long keeps its beginning
        x = qMin(x, dx + width() - inset - advance);
    return QRectF(x, m_px_margin.y(), advance, height() - 2 * m_px_margin.y());
}

int VexoLineEdit::cursorX(const QRectF &text_rect) const
{
    return truncated(text_rect.right()) + pxX(*m_scaling, m_cursor_mm_indent);
}

QRect VexoLineEdit::cursorArea() const
{
    const int seam = m_cursor_pen.width() / 2 + 1;
    return QRect(QPoint(m_cursor_x, m_cursor_top), QPoint(m_cursor_x, m_cursor_bottom))
        .adjusted(-seam, -seam, seam, seam);
}

// A text may have become secret while it shakes.
bool VexoLineEdit::showsDots() const
{
    return isSecret() || (isShaking() && !m_shake_shows_text);
}

bool VexoLineEdit::isShaking() const
{
    return m_shake && m_shake->isRunning();
}

QRect VexoLineEdit::shakeArea() const
{
    QRectF area;
    if (showsDots()) {
        const QVector<QRectF> dots = dotRects(m_shake->offset(), m_shake_dot_count);
        for (const QRectF &dot : dots)
            area |= dot;
        const double seam = m_frame->pen().widthF() / 2 + 1;
        area.adjust(-seam, -seam, seam, seam);
    } else {
        m_text_run->set(m_shake_text, font());
        area = m_text_run->inkRect(
            textRect(m_text_run->advance(), 0, m_shake->offset()), textAlignment());
    }
    return (area & QRectF(rect())).toAlignedRect();
}

QVector<QRectF> VexoLineEdit::dotRects(int dx, int count) const
{
    const float left = m_scaling->mm2px_X(float(m_mm_radius + m_left_offset_mm + 0.75));
    return SecretDots::rects(
        *m_scaling, size(), finitePx(left) + m_px_margin.x(), dx, count, m_draw_secured_centered);
}

Qt::Alignment VexoLineEdit::textAlignment() const
{
    return (m_draw_centered ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignVCenter;
}

void VexoLineEdit::layOut(const QString &text)
{
    m_text_run->set(text, font(), m_composed->formats());
    if (text.size() != m_placeholder_typed) {
        m_placeholder_typed = text.size();
        m_placeholder_rest
            = placeholderRest(m_placeholder_text, m_placeholder_typed, m_underscores > 0);
    }
    m_placeholder_run->set(m_placeholder_rest, font());
}

void VexoLineEdit::paintEvent(QPaintEvent *event)
{
    if (!m_painter.begin(this))
        return;
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_frame->draw(&m_painter, size(), event->rect());
    const QColor ink = isEnabled() ? m_text_color : m_text_inactive_color;
    if (isShaking())
        drawShake(ink);
    else if (showsDots())
        drawSecuredText(ink);
    else
        drawPlainText(ink);
    m_painter.end();
}

void VexoLineEdit::drawPlainText(const QColor &ink)
{
    if (!this->text().isEmpty())
        m_shake_text = this->text();
    const QString text = m_composed->within(this->text());
    layOut(text);
    m_show_placeholder = text.size() < m_placeholder_text.size();
    drawUserText(ink, m_placeholder_run->advance(), 0);
    m_cursor_x = cursorX(m_text_rect);
    if (m_cursor_visible)
        drawCursor(m_cursor_x);
    if (m_show_placeholder)
        drawPlaceholder(m_cursor_x);
}

void VexoLineEdit::drawUserText(const QColor &ink, int placeholder_advance, int dx)
{
    m_painter.setPen(ink);
    m_text_rect = textRect(m_text_run->advance(), placeholder_advance, dx);
    m_text_run->draw(&m_painter, m_text_rect, textAlignment());
}

void VexoLineEdit::drawCursor(int x)
{
    m_painter.setPen(m_cursor_pen);
    m_painter.drawLine(x, m_cursor_top, x, m_cursor_bottom);
}

void VexoLineEdit::drawPlaceholder(int x)
{
    m_text_rect.setLeft(x);
    m_text_rect.setWidth(m_placeholder_run->advance());
    m_painter.setPen(m_placeholder_color);
    m_placeholder_run->draw(&m_painter, m_text_rect, Qt::AlignLeft | Qt::AlignVCenter);
}

void VexoLineEdit::drawSecuredText(const QColor &ink)
{
    const int count = text().size();
    if (count > 0)
        m_shake_dot_count = count;
    drawSecuredTextInternal(ink, 0, count);
}

void VexoLineEdit::drawSecuredTextInternal(const QColor &ink, int dx, int count)
{
    if (echoMode() == NoEcho)
        return; // it does not even tell the length
    if (!m_dots)
        m_dots = std::make_unique<SecretDots>();
    m_dots->draw(&m_painter, dotRects(dx, count), m_frame->pen(), ink);
}

void VexoLineEdit::drawShake(const QColor &ink)
{
    m_shake_area = shakeArea();
    if (showsDots()) {
        drawSecuredTextInternal(ink, m_shake->offset(), m_shake_dot_count);
        return;
    }
    m_text_run->set(m_shake_text, font());
    drawUserText(ink, 0, m_shake->offset());
}

} // namespace vexo::hox::qt::ui
