// SPDX-License-Identifier: MIT
#include "ui/foundation/cachedvectoricon.h"

#include "ui/files/imagefile_p.h"
#include "ui/foundation/pixels_p.h"
#include "ui/foundation/sharpicon_p.h"

#include <stdexcept>

namespace vexo::hox::qt::ui {

namespace {

// Each size is refused without a screen.
void refuseUnusable(double first, double second, const char *text)
{
    if (!isMeasure(first) || !isMeasure(second))
        throw std::out_of_range(text);
    ScalingInfo::inst();
}

void addRenderings(QIcon *icon, ImageFile *file, const QSize &px)
{
    icon->addPixmap(file->pixmap(px), QIcon::Normal, QIcon::Off);
    const double ratio = sharpestRatio();
    if (ratio > 1)
        icon->addPixmap(file->pixmap(sharpSize(px, ratio)), QIcon::Normal, QIcon::Off);
}

} // namespace

CachedVectorIcon::CachedVectorIcon()
    : VexoLogging("CVI")
{
}

CachedVectorIcon::CachedVectorIcon(const QString &file)
    : CachedVectorIcon()
{
    setFilenameOfImageToCache(file);
}

CachedVectorIcon::CachedVectorIcon(const QString &file, const QSizeF &mm)
    : CachedVectorIcon(file)
{
    setMmSize(mm);
}

CachedVectorIcon::CachedVectorIcon(const QString &file, const QSize &px)
    : CachedVectorIcon(file)
{
    setPxSize(px);
}

CachedVectorIcon::CachedVectorIcon(const CachedVectorIcon &other)
    : QIcon(other)
    , VexoLogging(other)
    , m_must_relayout(true)
    , m_mm_width(other.m_mm_width)
    , m_mm_height(other.m_mm_height)
    , m_px_width(other.m_px_width)
    , m_px_height(other.m_px_height)
    , m_filename(other.m_filename)
{
    updateSizeCalculations();
}

CachedVectorIcon &CachedVectorIcon::operator=(const CachedVectorIcon &other)
{
    if (this == &other)
        return *this;
    m_mm_width = other.m_mm_width;
    m_mm_height = other.m_mm_height;
    m_filename = other.m_filename;
    m_px_width = other.m_px_width;
    m_px_height = other.m_px_height;
    m_must_relayout = true;
    updateSizeCalculations();
    return *this;
}

CachedVectorIcon::~CachedVectorIcon() = default;

void CachedVectorIcon::setFilenameOfImageToCache(const QString &file)
{
    m_filename = file;
    m_must_relayout = true;
}

void CachedVectorIcon::setFilenameOfImageToCache(const QString &file, const QSizeF &mm)
{
    setFilenameOfImageToCache(file);
    setMmSize(mm);
}

void CachedVectorIcon::setMmWidth(float mm)
{
    refuseUnusable(double(mm), 0, "Negative width is impossible!");
    m_must_relayout = true;
    if (mm == m_mm_width)
        return;
    m_mm_width = mm;
    if (mm > 0.0001f)
        updateSizeCalculations();
}

void CachedVectorIcon::setMmHeight(float mm)
{
    refuseUnusable(0, double(mm), "Negative height is impossible!");
    m_must_relayout = true;
    if (mm == m_mm_height)
        return;
    m_mm_height = mm;
    if (mm > 0.0001f)
        updateSizeCalculations();
}

void CachedVectorIcon::setMmSize(const QSizeF &mm)
{
    refuseUnusable(mm.width(), mm.height(), "Negative measurements are impossible!");
    m_must_relayout = true;
    if (double(m_mm_width) == mm.width() && double(m_mm_height) == mm.height())
        return;
    m_mm_width = float(mm.width());
    m_mm_height = float(mm.height());
    updateSizeCalculations();
}

void CachedVectorIcon::setPxSize(const QSize &px)
{
    refuseUnusable(px.width(), px.height(), "Negative measurements are impossible!");
    m_must_relayout = true;
    const double width = px.width();
    const double height = px.height();
    if (qFuzzyCompare(width, m_px_width) && qFuzzyCompare(height, m_px_height))
        return;
    m_px_width = width;
    m_px_height = height;
    m_mm_width = ScalingInfo::inst()->px2mm_X(float(width));
    m_mm_height = ScalingInfo::inst()->px2mm_Y(float(height));
    updateSizeCalculations();
}

void CachedVectorIcon::updateSizeCalculations()
{
    // A constructor has no override of a subclass to ask yet.
    if (mustRelayout()) { // NOLINT(clang-analyzer-optin.cplusplus.VirtualCall)
        m_px_width = double(ScalingInfo::inst()->mm2px_X(m_mm_width));
        m_px_height = double(ScalingInfo::inst()->mm2px_Y(m_mm_height));
    }
    compute();
}

void CachedVectorIcon::compute()
{
    if (m_filename.isEmpty())
        return;
    if (isBitmap(m_filename)) {
        computeBitmap();
        return;
    }
    ImageFile file(m_filename, ImageFile::Kind::Vector);
    const QSize natural = file.naturalSize();
    if (!natural.isValid()) {
        log("SVG renderer invalid.");
        computeBitmap();
        return;
    }
    const double width = natural.width();
    const double height = natural.height();
    if (!natural.isEmpty())
        fillMissingMm(fillMissingPx(width / height, height / width));
    addRenderings(this, &file, pxSize());
    m_must_relayout = false;
}

void CachedVectorIcon::computeBitmap()
{
    ImageFile file(m_filename, ImageFile::Kind::Any);
    const QSize natural = file.naturalSize();
    if (!natural.isValid()) {
        log("Invalid pixmap");
        return;
    }
    const float width = float(natural.width());
    const float height = float(natural.height());
    if (!natural.isEmpty())
        fillMissingPx(double(width / height), double(height / width));
    addRenderings(this, &file, pxSize());
}

// Not const: that is the symbol which applications link.
bool CachedVectorIcon::isBitmap(const QString &file)
{
    return !file.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive);
}

bool CachedVectorIcon::mustRelayout()
{
    return m_must_relayout;
}

QPixmap CachedVectorIcon::toPixmap()
{
    if (!(m_px_width > 0 && m_px_height > 0))
        return QPixmap();
    return iconPixmap(*this, pxSize(), sharpestRatio());
}

CachedVectorIcon::Dimension CachedVectorIcon::fillMissingPx(
    double width_per_height, double height_per_width)
{
    const float ratio = ScalingInfo::inst()->m_xy_ratio;
    if (m_px_width == 0 && m_px_height > 0) {
        m_px_width = double(1 / ratio) * m_px_height * width_per_height;
        return Dimension::Width;
    }
    if (m_px_height == 0 && m_px_width > 0) {
        m_px_height = double(ratio) * m_px_width * height_per_width;
        return Dimension::Height;
    }
    return Dimension::None;
}

void CachedVectorIcon::fillMissingMm(Dimension filled)
{
    if (filled == Dimension::Width)
        m_mm_width = ScalingInfo::inst()->px2mm_X(float(m_px_width));
    else if (filled == Dimension::Height)
        m_mm_height = ScalingInfo::inst()->px2mm_Y(float(m_px_height));
}

QSize CachedVectorIcon::pxSize() const
{
    return truncated(QSizeF(m_px_width, m_px_height));
}

void CachedVectorIcon::log(const char *line) const
{
    if (isDebugging())
        Debug(line);
}

} // namespace vexo::hox::qt::ui
