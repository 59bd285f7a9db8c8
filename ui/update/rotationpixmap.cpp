// SPDX-License-Identifier: MIT
#include "ui/update/rotationpixmap.h"

#include "ui/files/imagefile_p.h"
#include "ui/foundation/pixels_p.h"
#include "ui/painting/iconpixmap_p.h"

#include <QMutexLocker>
#include <QTimer>

namespace vexo::hox::qt::ui {

namespace {

// Covers \a px; a frame that would be too large at this ratio comes in fewer pixels.
QImage frameImage(ImageFile *file, const QSize &px, double ratio)
{
    if (px.isEmpty())
        return QImage();
    const QSize whole = file->read().scaled(px, Qt::KeepAspectRatioByExpanding);
    QImage image = file->image(sharpSize(whole, ratio));
    if (image.isNull() && ratio > 1)
        return frameImage(file, px, 1);
    image.setDevicePixelRatio(ratio);
    return image;
}

} // namespace

RotationPixmap::RotationPixmap(const QStringList &files, float width_mm, float height_mm)
    : QThread(nullptr)
    , m_timer(new QTimer(this))
    , m_files(files)
    , m_px(pxSize(*ScalingInfo::inst(), truncated(QSizeF(double(width_mm), double(height_mm)))))
    , m_ratio(sharpestRatio())
{
    setObjectName(QStringLiteral("Pixmap-Rotater"));
    connect(m_timer, &QTimer::timeout, this, &RotationPixmap::onTimeout);
    start();
}

RotationPixmap::~RotationPixmap()
{
    requestInterruption();
    wait();
}

void RotationPixmap::startRotating()
{
    const int step_ms = 500;
    m_timer->start(step_ms);
}

void RotationPixmap::stopRotating()
{
    m_timer->stop();
    resetRotation();
}

void RotationPixmap::resetRotation()
{
    m_current_index = 0;
}

void RotationPixmap::setCurrentRotationIndex()
{
    ++m_current_index;
    if (m_current_index >= m_files.size())
        m_current_index = 0;
}

QPixmap RotationPixmap::rotate()
{
    setCurrentRotationIndex();
    const auto frame = m_frames.constFind(m_current_index);
    if (frame != m_frames.constEnd())
        return frame.value();
    convertLoaded(m_current_index);
    return m_frames.value(m_current_index);
}

// A pixmap can only be made in the GUI thread.
void RotationPixmap::run()
{
    for (int i = 0; i < m_files.size() && !isInterruptionRequested(); ++i) {
        ImageFile file(m_files.at(i), ImageFile::Kind::Any);
        const QImage image = frameImage(&file, m_px, m_ratio);
        const QMutexLocker lock(&m_mutex);
        m_loaded.insert(i, image);
    }
}

void RotationPixmap::onTimeout()
{
    Q_EMIT pixmapRotated(rotate());
}

// One frame at a time, so that the GUI thread is never held up for more.
void RotationPixmap::convertLoaded(int index)
{
    QMutexLocker lock(&m_mutex);
    if (!m_loaded.contains(index))
        return;
    const QImage image = m_loaded.take(index);
    lock.unlock();
    m_frames.insert(index, QPixmap::fromImage(image));
}

} // namespace vexo::hox::qt::ui
