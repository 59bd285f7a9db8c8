#pragma once
// SPDX-License-Identifier: MIT

#include <RotationPixmap>

#include <QLabel>
#include <QTimer>

/// A busy animation at its place: shows the frames of a RotationPixmap while it turns, and its
/// first image while it rests.
class BusySign : public QLabel
{
    Q_OBJECT

public:
    /// As wide and high as \a mm. \a step_ms paces it; 0 leaves that to the RotationPixmap.
    BusySign(const QStringList &files, int mm, int step_ms = 0);

    /// Files of a ring of twelve dots in \a color, C0 or C3: \a steps of them, a divisor of 12,
    /// make a turn.
    static QStringList ringFiles(const QString &color, int steps = 12);

    void setTurning(bool turning);

private:
    vexo::hox::qt::ui::RotationPixmap m_rotation;
    const QPixmap m_still;
    QTimer m_timer;
    const int m_step_ms;
};
