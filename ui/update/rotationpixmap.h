#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"

#include <QImage>
#include <QMap>
#include <QMutex>
#include <QPixmap>
#include <QStringList>
#include <QThread>

class QTimer;

namespace vexo::hox::qt::ui {

/// A busy animation: flips through a sequence of images every 500 ms, such as a symbol drawn at
/// several angles. The images are loaded and scaled once, in a thread of its own that starts with
/// the construction, so that the GUI thread is not held up; a frame that is asked for before it is
/// loaded, or whose file cannot be read, is a null pixmap. The files are read as those of a
/// CachedVectorIcon: hostile ones count as unreadable, and vectors come out at the frame's size.
///
/// It belongs to the thread that creates it, the GUI thread, which also receives the frames. Its
/// caller deletes it, also in pixmapRotated(). The
/// destructor lets the loading end after the file it is at, and waits for it.
class HOXQUI_EXPORT RotationPixmap : public QThread
{
    Q_OBJECT

public:
    /// \a files in the order of the frames. \a width_mm and \a height_mm are the size of each
    /// frame, cut to whole mm; an image of other proportions covers it and is larger on one side.
    RotationPixmap(const QStringList &files, float width_mm, float height_mm);
    ~RotationPixmap() override;

    /// The first frame after this is that of the second file, 500 ms later.
    void startRotating();
    /// Stops and goes back to the first file.
    void stopRotating();
    /// Goes back to the first file.
    void resetRotation();
    /// Goes on to the next file, after the last one to the first.
    void setCurrentRotationIndex();
    /// Goes on to the next file and returns its frame.
    QPixmap rotate();

Q_SIGNALS:
    /// The next frame.
    void pixmapRotated(const QPixmap &pixmap);

protected:
    void run() override;

private Q_SLOTS:
    void onTimeout();

private:
    void convertLoaded(int index);

    QTimer *const m_timer;
    QMap<int, QPixmap> m_frames; // by index; only the GUI thread touches it
    const QStringList m_files;
    int m_current_index = 0;
    const QSize m_px; // of each frame
    QMutex m_mutex; // guards the next field
    QMap<int, QImage> m_loaded; // handed over by the loading thread
};

} // namespace vexo::hox::qt::ui
