// SPDX-License-Identifier: MIT
#include "ui/video/videoarea.h"

#include "util/stringutil.h"

namespace vexo::hox::qt::ui {

namespace {

// \a px of the widget in pixels of the frame; unsigned, so it wraps instead of overflowing.
quint32 scaled(quint32 px, quint32 video_px, int widget_px)
{
    return widget_px > 0 ? px * video_px / quint32(widget_px) : 0;
}

// How far the opening lies in the area.
quint32 offset(int position)
{
    return position < 0 ? 0U - quint32(position) : 0;
}

} // namespace

VideoArea::VideoArea(QWidget *parent)
    : QWidget(parent)
    , VexoLogging("*")
{
    setAutoFillBackground(false);
    setUpdatesEnabled(false);
}

void VideoArea::transformGeometry()
{
    const QSize opening = parentWidget() ? parentWidget()->size() : size();
    const quint32 x = scaled(offset(pos().x()), video_width, width());
    const quint32 y = scaled(offset(pos().y()), video_height, height());
    if (isDebugging())
        Debug(util::StringUtil::Format(
            "pos: %ux%u, video_width: %ux%u", x, y, video_width, video_height));
    Q_EMIT crop(int(x), int(y), scaled(quint32(opening.width()), video_width, width()),
        scaled(quint32(opening.height()), video_height, height()));
}

void VideoArea::transformGeometryForCameraConfig()
{
    Q_EMIT crop(0, 0, video_width, video_height);
}

void VideoArea::moveEvent(QMoveEvent *event)
{
    QWidget::moveEvent(event);
    transformGeometry();
}

void VideoArea::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    transformGeometry();
}

} // namespace vexo::hox::qt::ui
