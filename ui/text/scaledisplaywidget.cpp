// SPDX-License-Identifier: MIT
#include "ui/text/scaledisplaywidget.h"

#include "ui/foundation/panelfont_p.h"

#include <QPainter>

namespace vexo::hox::qt::ui {

ScaleDisplayWidget::ScaleDisplayWidget(
    Qt::Orientation orientation, float length_mm, QWidget *parent)
    : QWidget(parent)
    , m_length_mm(length_mm)
    , m_is_horizontal(orientation == Qt::Horizontal)
{
    setContentsMargins(0, 0, 0, 0);
}

void ScaleDisplayWidget::setTextColor(const QColor &color)
{
    m_text_color = color;
}

void ScaleDisplayWidget::setScaleText(QStringList texts)
{
    m_texts.swap(texts);
}

QSize ScaleDisplayWidget::sizeHint() const
{
    const QSize hint(widgetPx(truncated(double(px(m_length_mm)))), truncated(double(px(6))));
    return m_is_horizontal ? hint : hint.transposed();
}

void ScaleDisplayWidget::paintEvent(QPaintEvent *)
{
    QFont font;
    setPtSize(font, 7.0);
    QPainter painter(this);
    painter.setPen(m_text_color);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font);
    fixExtent();
    const int count = m_texts.size();
    const float span = px(m_length_mm - 6.0F);
    const float start = px(3.0F);
    const float end = start + span;
    const float step = count > 1 ? span / float(count - 1) : 0;
    float position = start;
    for (int i = 0; i < count && position <= end; ++i) {
        drawMark(&painter, m_texts.at(i), position);
        position = qMin(position + step, end); // rounded sums would lose the last label
    }
}

// Pixels along the scale; what lies across it is measured with the same density.
float ScaleDisplayWidget::px(float mm) const
{
    const ScalingInfo *scaling = ScalingInfo::inst();
    return m_is_horizontal ? scaling->mm2px_X(mm) : scaling->mm2px_Y(mm);
}

void ScaleDisplayWidget::fixExtent()
{
    const int extent_px = widgetPx(truncated(double(px(m_length_mm) + 10.0F)));
    if (m_is_horizontal)
        setFixedWidth(extent_px);
    else
        setFixedHeight(extent_px);
}

void ScaleDisplayWidget::drawMark(QPainter *painter, const QString &text, float position_px) const
{
    const auto pixel = [](float px) { return truncated(double(px)); };
    const float half = float(painter->fontMetrics().horizontalAdvance(text)) / 2;
    const int position = pixel(position_px);
    if (m_is_horizontal) {
        painter->drawText(pixel(position_px - half), pixel(px(3)), text);
        painter->drawLine(position, pixel(px(6)), position, pixel(px(4)));
    } else {
        painter->drawText(0, pixel(position_px + half), text);
        painter->drawLine(pixel(px(6)), position, pixel(px(4)), position);
    }
}

} // namespace vexo::hox::qt::ui
