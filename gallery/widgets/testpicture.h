#pragma once
// SPDX-License-Identifier: MIT

#include <QImage>

/// The picture of a camera that is not there: a test card with a field in a colour of its own in
/// each corner, and in its middle a dial whose hand and number go on with each frame.
class TestPicture
{
public:
    TestPicture();

    /// 1280 x 720 px, which are square.
    const QImage &frame() const { return m_frame; }
    /// Goes on to the next frame; 100 make a turn of the hand.
    void advance();

private:
    void drawDial();

    const QImage m_card;
    QImage m_frame;
    int m_count = 0;
};
