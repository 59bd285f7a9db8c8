// SPDX-License-Identifier: MIT
#include "ui/foundation/scalinginfo.h"

#include "ui/foundation/pixels_p.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSysInfo>

#include <stdexcept>

namespace vexo::hox::qt::ui {

std::unique_ptr<ScalingInfo> ScalingInfo::instance;

ScalingInfo *ScalingInfo::create()
{
    instance = std::make_unique<ScalingInfo>();
    return instance.get();
}

ScalingInfo::ScalingInfo()
{
    if (const QScreen *screen = QGuiApplication::primaryScreen()) {
        m_pixels = screen->size();
        m_size_mm = screen->physicalSize();
    }
    recalculate();
}

ScalingInfo::ScalingInfo(const QSize &px, const QSizeF &mm)
    : m_pixels(px)
    , m_size_mm(mm)
{
    recalculate();
}

void ScalingInfo::setPixels(const QSize &px)
{
    m_pixels = px;
    recalculate();
}

void ScalingInfo::setPixels(int width, int height)
{
    setPixels(QSize(width, height));
}

void ScalingInfo::setSizeMM(const QSizeF &mm)
{
    m_size_mm = mm;
    recalculate();
}

void ScalingInfo::setSizeMM(float width, float height)
{
    setSizeMM(QSizeF(double(width), double(height)));
}

void ScalingInfo::recalculate()
{
    // Asked this way round, NaN counts as undefined.
    const bool is_defined = m_size_mm.width() > 0 && m_size_mm.height() > 0 && m_pixels.width() > 0
        && m_pixels.height() > 0;
    if (!is_defined)
        throw std::range_error("Display size not defined!");
    m_px_per_mm_x = float(m_pixels.width() / m_size_mm.width());
    m_px_per_mm_y = float(m_pixels.height() / m_size_mm.height());
    m_px_per_pt = float(double(m_px_per_mm_y) * 25.4 / 72.0);
    m_xy_ratio = m_px_per_mm_y / m_px_per_mm_x;
}

int ScalingInfo::fontStretch() const
{
    return truncated(double(100.0f / (1.0f / m_xy_ratio) + 0.5f));
}

bool ScalingInfo::isDesktop()
{
    return isDesktop(QSysInfo::currentCpuArchitecture());
}

bool ScalingInfo::isDesktop(const QString &architecture)
{
    return architecture == QLatin1String("x86_64") || architecture == QLatin1String("i386");
}

} // namespace vexo::hox::qt::ui
