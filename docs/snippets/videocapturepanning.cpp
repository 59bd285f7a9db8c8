// SPDX-License-Identifier: MIT
//! [page]
#include <VideoArea>
#include <VideoCapturePanning>

using namespace vexo::hox::qt::ui;

// A double tap switches between the whole picture and its middle, twice as large.
void zoomByDoubleTap(VideoCapturePanning *panning, VideoArea *area)
{
    QObject::connect(panning, &VideoCapturePanning::tap, area, [panning, area] {
        const QSize opening = panning->viewport()->size();
        const bool is_whole = area->size() == opening;
        area->setMinimumSize(is_whole ? 2 * opening : QSize(0, 0));
        panning->widget()->updateGeometry();
        if (is_whole)
            panning->setPosition(QPoint(opening.width() / 2, opening.height() / 2));
    });
}
//! [page]
