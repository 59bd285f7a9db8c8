#pragma once
// SPDX-License-Identifier: MIT

#include <QSlider>

/// Follows another slider and looks as that does without the application's stylesheet. It takes no
/// input.
class PlainSlider : public QSlider
{
public:
    explicit PlainSlider(const QSlider *original);

protected:
    void paintEvent(QPaintEvent *event) override;
};
