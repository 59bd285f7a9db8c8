// SPDX-License-Identifier: MIT
#include "gallery/widgets/measure.h"

#include "gallery/measures.h"

#include <ScalingInfo>
#include <VexoColors>

#include <QPainter>

using namespace vexo::hox::qt::ui;

Measure::Measure(const QSizeF &mm, double step_mm)
    : m_mm(mm)
    , m_step_mm(step_mm)
{
    setFixedHeight(sizeHint().height());
    setMinimumWidth(sizeHint().width());
}

// Rounded, not cut: here the pixel counts that is nearest.
QSize Measure::sizeHint() const
{
    return ScalingInfo::inst()->mm2px(m_mm).toSize();
}

void Measure::paintEvent(QPaintEvent *)
{
    const QSize px = sizeHint();
    QPainter painter(this);
    painter.fillRect(QRect(QPoint(), px), VexoColors::C3);
    const int thickness = mmX(0.2);
    for (int i = 1; i * m_step_mm < m_mm.width(); ++i) {
        const int x = qRound(px.width() * i * m_step_mm / m_mm.width());
        const int height = i % 2 == 0 ? px.height() : px.height() / 2;
        painter.fillRect(
            x - thickness / 2, px.height() - height, thickness, height, VexoColors::C0);
    }
}
