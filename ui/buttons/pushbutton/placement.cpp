// SPDX-License-Identifier: MIT
#include "ui/buttons/pushbutton/placement_p.h"

#include "ui/foundation/pixels_p.h"

namespace vexo::hox::qt::ui {

TextPlace withinMargins(const TextPlace &whole, double margin_px)
{
    TextPlace place = whole;
    place.area.setLeft(whole.area.left() + margin_px);
    place.area.setRight(whole.area.right() - margin_px);
    return place;
}

TextPlaces sideBySide(const TextPlace &whole, double margin_px, double right_width_px)
{
    TextPlaces places{ withinMargins(whole, margin_px), whole };
    QRectF &label = places.label.area;
    QRectF &right = places.right.area;
    label.setRight(whole.area.right() - 2 * margin_px - right_width_px);
    right.setLeft(label.right() + margin_px);
    right.setRight(whole.area.right() - margin_px);
    places.label.ground.area.setRight(qMin(whole.ground.area.right(), right.left()));
    places.right.ground.area.setLeft(label.right());
    return places;
}

TextPlace upperPart(const TextPlace &whole, double bottom_px)
{
    TextPlace place = whole;
    place.area.setBottom(bottom_px);
    place.ground.area &= place.area;
    return place;
}

TextPlace lowerPart(const TextPlace &whole, double top_px)
{
    TextPlace place = whole;
    place.area.setTop(top_px);
    place.ground.area &= place.area;
    return place;
}

QPoint ImagePlacing::corner(
    const ScalingInfo &scaling, double height_mm, int half_px, int width_px) const
{
    const double centre = double(scaling.mm2px_X(float(distance)));
    const double left
        = is_right ? width_px - side_margin - centre - half_px : centre + side_margin - half_px;
    return QPoint(truncated(left), pxY(scaling, (2 * radius - height_mm) / 2 + top_margin));
}

} // namespace vexo::hox::qt::ui
