// SPDX-License-Identifier: MIT
#include "ui/text/vexolinespacer.h"

#include "ui/foundation/pixels_p.h"
#include "ui/foundation/vexocolors.h"

#include <QPainter>

namespace vexo::hox::qt::ui {

VexoLineSpacer::VexoLineSpacer(QWidget *parent)
    : QWidget(parent)
    , m_scaling(ScalingInfo::inst())
{
    setDarkColor(VexoColors::C6);
    setLightColor(VexoColors::C0);
    setLightLineThickness(m_light_mm);
    setDarkLineThickness(m_dark_mm);
}

void VexoLineSpacer::setDarkColor(const QColor &color)
{
    m_dark_pen.setColor(color);
    update();
}

void VexoLineSpacer::setLightColor(const QColor &color)
{
    m_light_pen.setColor(color);
    update();
}

void VexoLineSpacer::setDarkLineThickness(double mm)
{
    m_dark_mm = mm;
    m_dark_pen.setWidth(penWidth(mm));
    setPoints();
    update();
}

void VexoLineSpacer::setLightLineThickness(double mm)
{
    m_light_mm = mm;
    m_light_pen.setWidth(penWidth(mm));
    setPoints();
    update();
}

void VexoLineSpacer::setIsVerticalSpacer(bool is_vertical)
{
    m_is_vertical = is_vertical;
    setDarkLineThickness(m_dark_mm);
    setLightLineThickness(m_light_mm);
}

void VexoLineSpacer::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QLine edge = m_is_vertical ? QLine(0, 0, 0, height()) : QLine(0, 0, width(), 0);
    const QPoint across = m_is_vertical ? QPoint(1, 0) : QPoint(0, 1);
    painter.setPen(m_dark_pen);
    painter.drawLine(edge.translated(across * m_dark_pos));
    painter.setPen(m_light_pen);
    painter.drawLine(edge.translated(across * m_light_pos));
}

int VexoLineSpacer::penWidth(double mm) const
{
    return qMax(1, m_is_vertical ? pxX(*m_scaling, mm) : pxY(*m_scaling, mm));
}

void VexoLineSpacer::setPoints()
{
    m_dark_pos = qMax(0, m_dark_pen.width() / 2);
    m_light_pos = qMax(1, m_dark_pen.width() + m_light_pen.width() / 2);
}

} // namespace vexo::hox::qt::ui
