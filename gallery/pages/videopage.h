#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

#include <QTimer>

class VideoOutput;

namespace vexo::hox::qt::ui {
class VexoIconButton;
class VexoPushButton;
class VideoArea;
class VideoCapturePanning;
} // namespace vexo::hox::qt::ui

/// A camera picture that is zoomed by buttons or a double tap and panned by finger, with what the
/// two widgets tell the video output. The camera rests until it is played, and when the page is
/// left.
class VideoPage : public Page
{
public:
    VideoPage();

protected:
    void hideEvent(QHideEvent *event) override;

private:
    QWidget *createPicture();
    QLayout *createControls();
    QLayout *createZoomButtons();
    QLayout *createValues();
    void showCrop(QLabel *value);
    void showPlace(QLabel *position, QLabel *size);
    void showRatio(QLabel *value);
    void countTaps(QLabel *value);
    void setPlaying(bool playing);
    void setZoom(int percent);

    VideoOutput *m_output;
    vexo::hox::qt::ui::VideoCapturePanning *m_panning;
    vexo::hox::qt::ui::VideoArea *m_area;
    vexo::hox::qt::ui::VexoIconButton *m_minus;
    vexo::hox::qt::ui::VexoIconButton *m_plus;
    vexo::hox::qt::ui::VexoPushButton *m_play;
    QTimer m_camera; // runs while playing
    int m_zoom = 100; // percent of the whole picture
    int m_taps = 0;
};
