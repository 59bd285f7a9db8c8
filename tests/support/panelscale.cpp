// SPDX-License-Identifier: MIT
#include "support/panelscale.h"

#include <ScalingInfo>

using vexo::hox::qt::ui::ScalingInfo;

namespace {

void setPanel(const QSize &px, const QSizeF &mm)
{
    // Stored first, so that no mixture of old and new sizes is ever calculated with.
    ScalingInfo::inst()->m_size_mm = mm;
    ScalingInfo::inst()->setPixels(px);
}

} // namespace

PanelScale::PanelScale(double px_per_mm_x, double px_per_mm_y)
    : m_pixels(ScalingInfo::inst()->m_pixels)
    , m_mm(ScalingInfo::inst()->m_size_mm)
{
    const QSize px(1000, 1000);
    setPanel(px, QSizeF(px.width() / px_per_mm_x, px.height() / px_per_mm_y));
}

PanelScale::~PanelScale()
{
    setPanel(m_pixels, m_mm);
}
