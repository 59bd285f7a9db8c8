// SPDX-License-Identifier: MIT
#include "ui/input/shakemotion_p.h"

#include <QtMath>

#include <cmath>

namespace vexo::hox::qt::ui {

void ShakeMotion::start(
    unsigned int duration_ms, unsigned int oscillations, unsigned int amplitude_px)
{
    const unsigned int half_ms = 1000 / (2 * qBound(3U, oscillations, 20U));
    const unsigned int steps = qBound(100U, duration_ms, 2000U) / half_ms;
    m_amplitude = int(qBound(1U, amplitude_px, 20U));
    m_is_running = true;
    m_steps_left = steps;
    m_delay_ms = int(half_ms / 2);
    m_interval_ms = float(m_delay_ms);
    m_interval_step_ms = steps > 1 ? float(half_ms) / (float(steps) - 1) : 0;
    m_phase = 0;
    m_phase_step = steps > 0 ? float(M_PI_2 / steps) : 0;
}

bool ShakeMotion::step()
{
    if (m_steps_left == 0) {
        *this = ShakeMotion();
        return false;
    }
    --m_steps_left;
    const int before = m_amplitude;
    m_amplitude = -before;
    m_offset = int(float(-before) * std::cos(m_phase));
    if (m_offset == 0)
        m_offset = before < 1 ? 1 : -1; // it always moves, towards the new sign
    m_phase += m_phase_step;
    m_delay_ms = int(m_interval_ms);
    m_interval_ms += m_interval_step_ms;
    return true;
}

} // namespace vexo::hox::qt::ui
