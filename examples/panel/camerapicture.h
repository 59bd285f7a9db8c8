#pragma once
// SPDX-License-Identifier: MIT

#include <QBasicTimer>
#include <QImage>
#include <QWidget>

/// Stands in for the video output of a panel, which lies behind the widgets: shows a part of what a
/// camera at a front door sees. Each second, while it is seen, there is a new frame.
class CameraPicture : public QWidget
{
    Q_OBJECT

public:
    explicit CameraPicture(QWidget *parent = nullptr);

    /// px of the camera's frame.
    QSize frameSize() const { return m_scene.size(); }
    /// The part that is shown, px of the frame.
    void setCrop(int x, int y, uint width, uint height);

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    QRect stampPlace() const;

    const QImage m_scene;
    QRect m_crop;
    QBasicTimer m_second;
};
