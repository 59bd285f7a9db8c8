#pragma once
// SPDX-License-Identifier: MIT

#include "ui/foundation/scalinginfo.h"

#include <QWidget>

#include <cmath>

namespace vexo::hox::qt::ui {

/// What the toolkit's painter can address, px; far more than a screen shows. Measures beyond it are
/// clamped where they are converted, so that sums of some do not overflow.
constexpr int MAX_PX = 32767;

/// Whether it can be one, in mm, pt or px: neither negative nor NaN, which fails each comparison.
inline bool isMeasure(double value)
{
    return value >= 0;
}

inline bool isMeasure(const QSizeF &size)
{
    return isMeasure(size.width()) && isMeasure(size.height());
}

/// Pixels that are not cut, as a painter takes them. NaN gives 0.
inline double finitePx(double px)
{
    return std::isnan(px) ? 0.0 : qBound(-double(MAX_PX), px, double(MAX_PX));
}

inline double finitePx(float px)
{
    return finitePx(double(px));
}

/// Whole pixels, cut toward zero.
inline int truncated(double px)
{
    return int(finitePx(px));
}

inline QSize truncated(const QSizeF &px)
{
    return QSize(truncated(px.width()), truncated(px.height()));
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

/// Pixels of a size in mm that are not cut.
inline QSizeF finitePxSize(const ScalingInfo &scaling, const QSizeF &mm)
{
    return QSizeF(finitePx(scaling.mm2px_X(float(mm.width()))),
        finitePx(scaling.mm2px_Y(float(mm.height()))));
}

/// \a px, which may be a sum, as a widget's fixed size takes it; the toolkit warns of a negative
/// one.
inline int widgetPx(int px)
{
    return qBound(0, px, MAX_PX);
}

/// Fixes the width of \a widget, mm.
inline void fixWidth(QWidget *widget, const ScalingInfo &scaling, double mm)
{
    widget->setFixedWidth(widgetPx(pxX(scaling, mm)));
}

/// Fixes the height of \a widget, mm.
inline void fixHeight(QWidget *widget, const ScalingInfo &scaling, double mm)
{
    widget->setFixedHeight(widgetPx(pxY(scaling, mm)));
}

/// Whether a widget keeps a picture of itself of \a px; beyond what a panel has it draws anew.
inline bool isKeepable(const QSize &px)
{
    const qint64 most = 1 << 22;
    return !px.isEmpty() && qint64(px.width()) * px.height() <= most;
}

} // namespace vexo::hox::qt::ui
