// SPDX-License-Identifier: MIT
#include "gallery/measures.h"

#include <ScalingInfo>

#include <QtGlobal>

using vexo::hox::qt::ui::ScalingInfo;

namespace {

int wholePixels(float px)
{
    return px > 0 ? qMax(1, int(px)) : 0;
}

} // namespace

int mmX(double mm)
{
    return wholePixels(ScalingInfo::inst()->mm2px_X(float(mm)));
}

int mmY(double mm)
{
    return wholePixels(ScalingInfo::inst()->mm2px_Y(float(mm)));
}

QSize mmSize(double width, double height)
{
    return QSize(mmX(width), mmY(height));
}

QFont ptFont(double pt, int weight)
{
    QFont font; // the application's: family and stretch come from FontLoader
    font.setPixelSize(wholePixels(ScalingInfo::inst()->pt2px_Y(float(pt))));
    font.setWeight(weight);
    return font;
}
