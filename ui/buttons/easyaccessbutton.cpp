// SPDX-License-Identifier: MIT
#include "ui/buttons/easyaccessbutton.h"

#include <QtGlobal>

namespace vexo::hox::qt::ui {

namespace {

// In 64 bits, so that no margin overflows.
bool isOutside(qint64 x, qint64 y, qint64 width, qint64 height, qint64 margin)
{
    return x < -margin || y < -margin || x > width + margin || y > height + margin;
}

} // namespace

void EasyAccessButton::setEasyPress(bool enable, int margin_px)
{
    m_easy_press = enable;
    m_easy_margin = margin_px;
}

void EasyAccessButton::mouseWasMoved(int x, int y, int width, int height)
{
    if (!m_easy_press)
        return;
    m_released_nearby
        = isOutside(x, y, width, height, 0) && !isOutside(x, y, width, height, m_easy_margin);
}

bool EasyAccessButton::mouseWasReleased()
{
    const bool is_click = m_easy_press && m_released_nearby;
    m_released_nearby = false;
    return is_click;
}

} // namespace vexo::hox::qt::ui
