#pragma once
// SPDX-License-Identifier: MIT

#include "ui/painting/textblock_p.h"

#include <QPoint>
#include <QRectF>

namespace vexo::hox::qt::ui {

class ScalingInfo;

/// The area of a text, px, and the part of the ground of one colour on which it lies.
struct TextPlace
{
    QRectF area;
    TextBlock::Ground ground;
};

/// A label, and a second text at its right.
struct TextPlaces
{
    TextPlace label;
    TextPlace right;
};

/// Leaves a margin on both sides.
TextPlace withinMargins(const TextPlace &whole, double margin_px);
/// Leaves a margin on both sides and one between the texts.
TextPlaces sideBySide(const TextPlace &whole, double margin_px, double right_width_px);
TextPlace upperPart(const TextPlace &whole, double bottom_px);
TextPlace lowerPart(const TextPlace &whole, double top_px);

/// Where an image lies in a pill: half-way down, with its centre at a distance from one end.
struct ImagePlacing
{
    double radius = 0; // mm, half the height of the pill
    double top_margin = 0; // mm
    double side_margin = 0; // px
    double distance = 0; // mm, from the side margin to the centre
    bool is_right = false;

    /// The top left corner, px, of an image of \a height_mm in a button of \a width_px, \a half_px
    /// left of the centre.
    QPoint corner(const ScalingInfo &scaling, double height_mm, int half_px, int width_px) const;
};

} // namespace vexo::hox::qt::ui
