// SPDX-License-Identifier: MIT
#include "gallery/widgets/busysign.h"

#include "gallery/measures.h"

#include <CachedVectorIcon>

using namespace vexo::hox::qt::ui;

BusySign::BusySign(const QStringList &files, int mm, int step_ms)
    : m_rotation(files, float(mm), float(mm))
    , m_still(CachedVectorIcon(files.first(), QSizeF(mm, mm)).toPixmap())
    , m_step_ms(step_ms)
{
    setFixedSize(mmSize(mm, mm));
    setScaledContents(true); // the frames keep the proportions of their files in px, not in mm
    setAccessibleName("Busy");
    setPixmap(m_still);
    connect(&m_rotation, &RotationPixmap::pixmapRotated, this, &QLabel::setPixmap);
    connect(&m_timer, &QTimer::timeout, this, [this] { setPixmap(m_rotation.rotate()); });
}

QStringList BusySign::ringFiles(const QString &color, int steps)
{
    QStringList files;
    for (int step = 0; step < 12; step += 12 / steps)
        files += QString(":/busysign/%1-%2.svg").arg(color).arg(step);
    return files;
}

void BusySign::setTurning(bool turning)
{
    m_timer.stop();
    m_rotation.stopRotating();
    if (!turning)
        setPixmap(m_still);
    else if (m_step_ms > 0)
        m_timer.start(m_step_ms);
    else
        m_rotation.startRotating();
}
