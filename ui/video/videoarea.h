#pragma once
// SPDX-License-Identifier: MIT

#include "system/vexologging.h"
#include "ui/hoxqui_export.h"

#include <QWidget>

namespace vexo::hox::qt::ui {

/// A transparent placeholder for a whole video frame, stretched over the widget's size. It paints
/// nothing: the video is drawn outside the widget system. Its parent is the opening through which
/// the frame is seen; whenever the area moves or is resized, it tells which part of the frame that
/// is. As the widget of a VideoCapturePanning, larger than its viewport, it turns zoom and panning
/// into a crop of the camera picture.
///
/// An area right of or below its parent's origin crops from 0 on that axis; without a parent it is
/// its own opening. On the channel "*" it logs each crop. In crop() it may not be deleted; use
/// deleteLater().
class HOXQUI_EXPORT VideoArea // clazy:exclude=copyable-polymorphic
    : public QWidget,
      private vexo::hox::qt::system::VexoLogging
{
    Q_OBJECT

public:
    explicit VideoArea(QWidget *parent = nullptr);

    quint32 video_width = 0; ///< px of the camera's frame; set it before the area is shown
    quint32 video_height = 0; ///< px of the camera's frame; set it before the area is shown

    /// Shows with the next crop.
    void setVideoWidth(quint32 px) { video_width = px; }
    void setVideoHeight(quint32 px) { video_height = px; }

    /// Emits what is visible.
    void transformGeometry();
    /// Emits the whole frame, whatever is visible.
    void transformGeometryForCameraConfig();

Q_SIGNALS:
    /// The part of the frame that is visible, px of the frame. Zeros while the frame or the area
    /// has no size.
    void crop(int x, int y, uint width, uint height);

protected:
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
};

} // namespace vexo::hox::qt::ui
