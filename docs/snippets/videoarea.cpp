// SPDX-License-Identifier: MIT
//! [page]
#include <VideoArea>
#include <VideoCapturePanning>

#include <QScroller>

using namespace vexo::hox::qt::ui;

// A camera picture of 1280 x 720 px, shown twice as large as its opening; a finger pans it. The
// video output draws what crop() tells into the place that the panning area tells.
template <typename Output>
VideoCapturePanning *createCameraView(Output *output, QWidget *parent)
{
    auto *panning = new VideoCapturePanning(parent);
    auto *area = new VideoArea;
    area->setVideoWidth(1280);
    area->setVideoHeight(720);
    area->setMinimumSize(1600, 900);
    QObject::connect(area, &VideoArea::crop, output, &Output::setCrop);
    QObject::connect(panning, &VideoCapturePanning::setViewportPos, output, &Output::setPlace);
    QObject::connect(panning, &VideoCapturePanning::setViewportSize, output, &Output::setSize);
    panning->setWidget(area);
    area->setAutoFillBackground(false); // what lies behind is to be seen
    panning->viewport()->setAutoFillBackground(false);
    QScroller::grabGesture(panning->viewport(), QScroller::LeftMouseButtonGesture);
    return panning;
}
//! [page]
