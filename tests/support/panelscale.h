#pragma once
// SPDX-License-Identifier: MIT

#include <QSize>
#include <QSizeF>

/// Gives the panel a density in px/mm for as long as it lives. Use different ones for x and y, so
/// that a swapped axis shows.
class PanelScale
{
public:
    PanelScale(double px_per_mm_x, double px_per_mm_y);
    ~PanelScale();
    PanelScale(const PanelScale &) = delete;
    PanelScale &operator=(const PanelScale &) = delete;

private:
    const QSize m_pixels;
    const QSizeF m_mm;
};
