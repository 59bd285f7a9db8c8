#pragma once
// SPDX-License-Identifier: MIT

#include "ui/input/shakemotion_p.h"

#include <QRect>
#include <QString>
#include <QTimer>

#include <utility>

namespace vexo::hox::qt::ui {

/// A field that shakes: its timer, and the content that was painted last, which is shown meanwhile
/// even if the field has been cleared. At each timeout the owner makes a step().
class FieldShake : public QTimer
{
public:
    FieldShake();

    /// Notes what is painted, unless that is nothing. While it shakes, that is what was noted.
    void note(const QString &text);
    void note(int dots);

    /// As ShakeMotion::start(). The first step repaints all of \a field, px: cursor and placeholder
    /// go, too.
    void shake(unsigned int duration_ms, unsigned int oscillations, unsigned int amplitude_px,
        bool show_text, const QRect &field);
    /// Without a step left the shake ends, and what was noted is forgotten.
    bool step();

    bool isShaking() const { return m_motion.isRunning(); }
    int offset() const { return m_motion.offset(); } ///< px, 0 unless it shakes
    bool showsText() const { return m_shows_text; } ///< or dots
    QString text() const { return m_text; }
    int dots() const { return m_dots; }

    /// Notes where the content is painted, px: the next step repaints it.
    void addArea(const QRect &area) { m_area |= area; }
    QRect takeArea() { return std::exchange(m_area, QRect()); }

private:
    ShakeMotion m_motion;
    QString m_text;
    int m_dots = 0;
    bool m_shows_text = false;
    QRect m_area;
};

} // namespace vexo::hox::qt::ui
