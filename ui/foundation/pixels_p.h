#pragma once

#include "ui/foundation/scalinginfo.h"

#include <QWidget>

#include <cmath>
#include <limits>

namespace vexo::hox::qt::ui {

/// Whole pixels, cut toward zero. NaN gives 0 and huge values are clamped: a plain cast of them is
/// undefined and differs between processors.
inline int truncated(double px)
{
    if (std::isnan(px))
        return 0;
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    return int(px < lowest ? lowest : px > highest ? highest : px);
}

/// Whole pixels of a width in mm.
inline int pxX(const ScalingInfo &scaling, double mm)
{
    return truncated(double(scaling.mm2px_X(float(mm))));
}

/// Whole pixels of a height in mm.
inline int pxY(const ScalingInfo &scaling, double mm)
{
    return truncated(double(scaling.mm2px_Y(float(mm))));
}

/// Whole pixels of a font height in pt.
inline int pxPt(const ScalingInfo &scaling, double pt)
{
    return truncated(double(scaling.pt2px_Y(float(pt))));
}

/// Whole pixels of a size in mm.
inline QSize pxSize(const ScalingInfo &scaling, const QSizeF &mm)
{
    return QSize(pxX(scaling, mm.width()), pxY(scaling, mm.height()));
}

/// Pixels that are not cut, as a painter takes them; kept so small that sums of some do not
/// overflow. NaN gives 0.
inline double finitePx(float px)
{
    const double limit = QWIDGETSIZE_MAX;
    return std::isnan(px) ? 0.0 : qBound(-limit, double(px), limit);
}

/// Such pixels of a size in mm.
inline QSizeF finitePxSize(const ScalingInfo &scaling, const QSizeF &mm)
{
    return QSizeF(finitePx(scaling.mm2px_X(float(mm.width()))),
        finitePx(scaling.mm2px_Y(float(mm.height()))));
}

/// Whole pixels of a position, kept so small that a size added to it does not overflow.
inline int positionPx(double px)
{
    return qBound(-QWIDGETSIZE_MAX, truncated(px), QWIDGETSIZE_MAX);
}

/// Such pixels of a width in mm.
inline int positionX(const ScalingInfo &scaling, double mm)
{
    return positionPx(double(scaling.mm2px_X(float(mm))));
}

/// The widest pen that the toolkit takes without a warning, px.
constexpr int WIDEST_PEN = 32767;

/// \a px as a widget's fixed size takes it; beyond these limits the toolkit prints a warning.
inline int widgetPx(int px)
{
    return qBound(0, px, QWIDGETSIZE_MAX);
}

} // namespace vexo::hox::qt::ui
