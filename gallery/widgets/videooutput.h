#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/widgets/testpicture.h"

#include <QRect>
#include <QWidget>

/// Stands in for the video output of a panel, which lies behind the widgets: it draws a part of the
/// camera picture into a rectangle on the screen, and knows nothing of who tells it which.
class VideoOutput : public QWidget
{
public:
    VideoOutput();

    /// px of the camera picture.
    QSize pictureSize() const { return m_picture.frame().size(); }
    void setCrop(int x, int y, uint width, uint height);
    /// px of the screen.
    void setPlace(uint x, uint y);
    void setPlaceSize(uint width, uint height);
    /// The camera has taken a picture.
    void showNextFrame();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    TestPicture m_picture;
    QRect m_crop;
    QRect m_place; // in this widget
};
