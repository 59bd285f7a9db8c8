// SPDX-License-Identifier: MIT
#include "gallery/widgets/videooutput.h"

#include <VexoColors>

#include <QPainter>

using vexo::hox::qt::ui::VexoColors;

VideoOutput::VideoOutput()
{
    setAttribute(Qt::WA_OpaquePaintEvent); // what lies behind is not painted with each frame
}

void VideoOutput::setCrop(int x, int y, uint width, uint height)
{
    m_crop = QRect(x, y, int(width), int(height));
    update(m_place);
}

// Kept in this widget, so that the picture goes with a window that is moved.
void VideoOutput::setPlace(uint x, uint y)
{
    m_place.moveTopLeft(mapFromGlobal(QPoint(int(x), int(y))));
    update();
}

void VideoOutput::setPlaceSize(uint width, uint height)
{
    m_place.setSize(QSize(int(width), int(height)));
    update();
}

void VideoOutput::showNextFrame()
{
    m_picture.advance();
    update(m_place);
}

void VideoOutput::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (!m_place.contains(rect()))
        painter.fillRect(rect(), VexoColors::C3);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(m_place, m_picture.frame(), m_crop);
}
