#pragma once
// SPDX-License-Identifier: MIT

namespace vexo::hox::qt::ui {

/// A damped shake, step by step and without a clock: the content swings left and right in turn,
/// from the full amplitude to almost none over a quarter cosine, while the delays grow from a
/// quarter of an oscillation to three quarters.
class ShakeMotion
{
public:
    /// Starts anew; until the first step the offset stays as it is. What is out of range is
    /// clamped: 100 to 2000 ms, 3 to 20 oscillations per second, 1 to 20 px.
    void start(unsigned int duration_ms, unsigned int oscillations, unsigned int amplitude_px);
    /// Makes the next step. Without one left it ends the shake and returns false.
    bool step();

    bool isRunning() const { return m_is_running; }
    int offset() const { return m_offset; } ///< px, negative to the left
    int delay() const { return m_delay_ms; } ///< ms until the next step

private:
    int m_amplitude = 0; // px; changes its sign at every step
    int m_offset = 0; // px
    bool m_is_running = false;
    unsigned int m_steps_left = 0;
    int m_delay_ms = 0;
    float m_interval_ms = 0; // the delay after the next step
    float m_interval_step_ms = 0;
    float m_phase = 0; // radians, 0 to pi/2
    float m_phase_step = 0;
};

} // namespace vexo::hox::qt::ui
