#pragma once
// SPDX-License-Identifier: MIT

#include <QWidget>

/// A small screen in a page, with a few rows on it, for what lies over a screen.
class ScreenFrame : public QWidget
{
public:
    /// mm.
    explicit ScreenFrame(double height);

protected:
    void paintEvent(QPaintEvent *event) override;
};
