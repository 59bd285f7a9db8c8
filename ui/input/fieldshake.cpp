// SPDX-License-Identifier: MIT
#include "ui/input/fieldshake_p.h"

namespace vexo::hox::qt::ui {

FieldShake::FieldShake()
{
    setSingleShot(true);
    setTimerType(Qt::PreciseTimer);
}

void FieldShake::note(const QString &text)
{
    if (!isShaking() && !text.isEmpty())
        m_text = text;
}

void FieldShake::note(int dots)
{
    if (!isShaking() && dots > 0)
        m_dots = dots;
}

void FieldShake::shake(unsigned int duration_ms, unsigned int oscillations,
    unsigned int amplitude_px, bool show_text, const QRect &field)
{
    m_motion.start(duration_ms, oscillations, amplitude_px);
    start(m_motion.delay());
    m_shows_text = show_text;
    m_area = field;
}

bool FieldShake::step()
{
    if (m_motion.step()) {
        start(m_motion.delay());
        return true;
    }
    m_text.clear();
    m_dots = 0;
    m_shows_text = false;
    return false;
}

} // namespace vexo::hox::qt::ui
