// SPDX-License-Identifier: MIT
#include "panel/roundground_p.h"

#include <ScalingInfo>

#include <QPainter>

namespace vexo::hox::qt::panel {

RoundGround::RoundGround(const QColor &color, double radius_mm, QWidget *parent)
    : QWidget(parent)
    , m_color(color)
    , m_radius_px(ui::ScalingInfo::inst()->mm2px({ radius_mm, radius_mm }))
{
}

void RoundGround::setColor(const QColor &color)
{
    m_color = color;
    update();
}

void RoundGround::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_color);
    painter.drawRoundedRect(rect(), m_radius_px.width(), m_radius_px.height());
}

} // namespace vexo::hox::qt::panel
