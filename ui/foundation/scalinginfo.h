#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"

#include <QSize>
#include <QSizeF>

#include <memory>

class QString;

namespace vexo::hox::qt::ui {

/// Turns millimetres and points into pixels of the panel's screen, and back. There is one object
/// per process, inst(); every widget converts its measures through it when a measure is set or a
/// layout is computed. A change of the scale therefore reaches a widget only when that widget next
/// converts a measure.
///
/// The conversions neither round nor clamp. Each widget, and each size of an icon, needs the
/// object, so their constructors and setters throw what inst() throws when there is no screen; an
/// icon is unchanged then. GUI thread only.
class HOXQUI_EXPORT ScalingInfo
{
public:
    /// The process-wide object, made from the primary screen at the first call. Throws
    /// std::range_error "Display size not defined!" as long as there is no screen or the screen
    /// reports a size of 0 px or 0 mm; the next call tries again.
    static ScalingInfo *inst() { return instance ? instance.get() : create(); }

    /// Reads the primary screen. Throws as inst() does. Applications use inst().
    ScalingInfo();
    /// A scale of its own, with no look at a screen. Throws as setPixels() does.
    ScalingInfo(const QSize &px, const QSizeF &mm);

    /// Width of \a mm millimetres in px.
    float mm2px_X(float mm) const { return mm * m_px_per_mm_x; }
    /// Height of \a mm millimetres in px.
    float mm2px_Y(float mm) const { return mm * m_px_per_mm_y; }
    /// Width and height in px, each in float precision.
    QSizeF mm2px(const QSizeF &mm) const
    {
        return QSizeF(double(mm2px_X(float(mm.width()))), double(mm2px_Y(float(mm.height()))));
    }
    /// Height of \a pt typographic points (1 pt = 25.4/72 mm) in px.
    float pt2px_Y(float pt) const { return pt * m_px_per_pt; }
    /// Width of \a px pixels in mm.
    float px2mm_X(float px) const { return px / m_px_per_mm_x; }
    /// Height of \a px pixels in mm.
    float px2mm_Y(float px) const { return px / m_px_per_mm_y; }

    /// Overrides the screen's size in px. Throws std::range_error "Display size not defined!"
    /// unless all four sizes are above 0; the size is stored all the same, the scale stays as it
    /// was.
    void setPixels(const QSize &px);
    void setPixels(int width, int height);
    /// Overrides the screen's size in mm. Throws as setPixels() does; NaN counts as undefined.
    void setSizeMM(const QSizeF &mm);
    void setSizeMM(float width, float height);
    /// Derives the four factors from the stored sizes. Throws as setPixels() does and changes
    /// nothing then.
    void recalculate();

    /// Horizontal stretch of fonts on a screen with non-square pixels, percent (for
    /// QFont::setStretch): the vertical density over the horizontal one; 100 for square pixels.
    int fontStretch() const;
    /// Whether the process runs on a desktop processor and not on a panel's.
    static bool isDesktop();
    /// The same for a processor named as QSysInfo::currentCpuArchitecture() does.
    static bool isDesktop(const QString &architecture);

    QSize m_pixels = QSize(-1, -1); ///< screen size, px
    QSizeF m_size_mm = QSizeF(-1.0, -1.0); ///< screen size, mm
    float m_px_per_mm_x = 0; ///< horizontal density
    float m_px_per_mm_y = 0; ///< vertical density
    float m_px_per_pt = 0; ///< vertical px per typographic point
    float m_xy_ratio = 0; ///< vertical density over horizontal density

    /// Holds what inst() returns; empty until its first success.
    static std::unique_ptr<ScalingInfo> instance;

private:
    static ScalingInfo *create();
};

} // namespace vexo::hox::qt::ui
