#pragma once
// SPDX-License-Identifier: MIT

#include "system/vexologging.h"
#include "ui/hoxqui_export.h"

#include <QElapsedTimer>
#include <QScrollArea>

namespace vexo::hox::qt::ui {

/// The opening through which a VideoArea is seen: a scroll area without scroll bars and frame. It
/// tells where on the screen it lies, how large it is and how it is proportioned, so that the video
/// output can be placed exactly behind it, and reports double taps. The area that it shows is
/// stretched to its size; give the area a minimum size above that to zoom.
///
/// For a video behind the widgets switch off autoFillBackground of the area, after setWidget(), and
/// of the viewport: the toolkit gives both a ground. To let a finger pan, grab a QScroller gesture
/// of the viewport.
///
/// It may be deleted in tap(), but not in its other signals, after which the toolkit goes on with
/// it; use deleteLater() there. It logs on the channel "P".
class HOXQUI_EXPORT VideoCapturePanning // clazy:exclude=copyable-polymorphic
    : public QScrollArea,
      private vexo::hox::qt::system::VexoLogging
{
    Q_OBJECT

public:
    explicit VideoCapturePanning(QWidget *parent = nullptr);

    /// Scrolls to \a position, px. Signs do not count, so the place of the shown widget, which is
    /// never above 0, can be given as it is.
    void setPosition(const QPoint &position);

Q_SIGNALS:
    /// It has moved in its parent, to this place on the screen, px. Put it at 0, 0 of its parent:
    /// its distance from there counts twice.
    void setViewportPos(uint x, uint y);
    /// It was resized, px.
    void setViewportSize(uint width, uint height);
    /// Height divided by width as they are in mm; after setViewportSize(), but not for a width of
    /// 0.
    void setAspectRatio(double ratio);
    /// A press within 250 ms of the one before, or of the construction.
    void tap();

protected:
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    QElapsedTimer m_tap_timer; // since the last press; invalid after one that was taken back
};

} // namespace vexo::hox::qt::ui
