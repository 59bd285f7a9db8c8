#pragma once
// SPDX-License-Identifier: MIT

#include "screen.h"

class CameraPicture;
class QLabel;

namespace vexo::hox::qt::ui {
class VexoIconButton;
class VideoArea;
class VideoCapturePanning;
} // namespace vexo::hox::qt::ui

/// What the camera at the door sees; zoomed by buttons or a double tap, moved by a finger.
class CameraScreen : public Screen
{
    Q_OBJECT

public:
    explicit CameraScreen(PanelWindow *panel);

    /// Percent of the whole picture, 100 to 400.
    void setZoom(int percent);
    int zoom() const { return m_zoom; }

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void setUpPicture();
    void setUpPanning();
    void addControls();
    void fitPicture();

    CameraPicture *const m_picture;
    vexo::hox::qt::ui::VideoCapturePanning *const m_panning;
    vexo::hox::qt::ui::VideoArea *const m_area;
    vexo::hox::qt::ui::VexoIconButton *const m_minus;
    vexo::hox::qt::ui::VexoIconButton *const m_plus;
    QLabel *const m_percent;
    QWidget *const m_stage; // around the picture
    int m_zoom = 100;
};
