#pragma once
// SPDX-License-Identifier: MIT

#include "system/vexologging.h"
#include "ui/hoxqui_export.h"

#include <QIcon>
#include <QPixmap>
#include <QSizeF>
#include <QString>

namespace vexo::hox::qt::ui {

/// An icon that is rendered from an SVG or bitmap file once, at a size in mm or px, and keeps the
/// pixmap (mode Normal, state Off). It is a QIcon: hand it to setIcon(), or paint toPixmap().
///
/// A dimension of 0 follows from the other one and the aspect ratio of the image. Rendering happens
/// when a size is set, never in a paint; icons of the same unchanged file and size share one
/// rendering. An image beyond 32767 px on a side or 8 Mpx in all is not rendered, nor is an SVG of
/// so many large shapes that it would take some tenths of a second.
///
/// On a screen with a device pixel ratio above 1 a second rendering has that many more pixels. It
/// is made for the sharpest screen that there is at that time; after another one has come,
/// compute() renders for it. Widgets of the library show it in any case, the toolkit's own only
/// with Qt::AA_UseHighDpiPixmaps, which Panel::setUp() sets.
///
/// A file is found as QPixmap finds it: as a resource, in search paths, and without its suffix. One
/// that cannot be read is no error: the icon keeps what it had and writes a Debug line on the
/// channel "CVI". Hostile files (no regular file, more than 16 MB or 8 Mpx, an SVG that explodes or
/// refers to other files) count as unreadable; resources are not examined. The toolkit may warn
/// about flaws in an SVG that is readable. GUI thread only.
class HOXQUI_EXPORT CachedVectorIcon // clazy:exclude=copyable-polymorphic
    : public QIcon,
      private vexo::hox::qt::system::VexoLogging
{
public:
    /// An empty icon.
    CachedVectorIcon();
    /// Remembers \a file; nothing is rendered before a size is set.
    explicit CachedVectorIcon(const QString &file);
    /// Renders \a file at \a mm. Throws as setMmSize() does.
    CachedVectorIcon(const QString &file, const QSizeF &mm);
    /// Renders \a file at \a px. Throws as setPxSize() does.
    CachedVectorIcon(const QString &file, const QSize &px);
    /// Shares the renderings and lays out anew at the scale of now.
    CachedVectorIcon(const CachedVectorIcon &other);
    /// Takes over file and sizes, not the renderings, and lays out anew at the scale of now.
    CachedVectorIcon &operator=(const CachedVectorIcon &other);
    ~CachedVectorIcon() override;

    /// The file last given, empty at first.
    QString filename() const { return m_filename; }
    /// Nothing is rendered before the next size change or updateSizeCalculations().
    void setFilenameOfImageToCache(const QString &file);
    /// Stores the file, then setMmSize(): with the size already held nothing is rendered yet.
    void setFilenameOfImageToCache(const QString &file, const QSizeF &mm);

    /// mm; 0 until set or derived from an SVG.
    float mmWidth() const { return m_mm_width; }
    /// Renders when the width differs and is above 0. Throws std::out_of_range "Negative width is
    /// impossible!" for a negative width or NaN; the icon is unchanged then.
    void setMmWidth(float mm);
    /// mm; 0 until set or derived from an SVG.
    float mmHeight() const { return m_mm_height; }
    /// As setMmWidth(), with "Negative height is impossible!".
    void setMmHeight(float mm);
    /// Renders when the size differs. Throws std::out_of_range "Negative measurements are
    /// impossible!" for a negative dimension or NaN; the icon is unchanged then.
    void setMmSize(const QSizeF &mm);

    /// px before they are cut; -1 until a size is set.
    double pxWidth() const { return m_px_width; }
    /// As pxWidth().
    double pxHeight() const { return m_px_height; }
    /// Renders when the size differs. The size is kept in mm and the px are derived from them
    /// again, so at odd densities the rendering can be one pixel smaller than asked for. Throws as
    /// setMmSize() does.
    void setPxSize(const QSize &px);

    /// Derives the px from the mm if something was set since the last SVG rendering, and renders.
    void updateSizeCalculations();
    /// Renders the file at the held px.
    void compute();
    /// Renders the file at the held px as a bitmap file.
    void computeBitmap();
    /// Whether \a file is taken for a bitmap: true unless it ends with ".svg" in any case.
    bool isBitmap(const QString &file);
    /// Whether file or size were set since the last SVG rendering. A subclass can keep the px from
    /// being derived from the mm again.
    virtual bool mustRelayout();

    /// The rendering at the current size; null when there is none. For the sharpest screen: its
    /// device pixel ratio tells how many of its pixels go to one px.
    QPixmap toPixmap();

private:
    enum class Dimension { None, Width, Height };

    Dimension fillMissingPx(double width_per_height, double height_per_width);
    void fillMissingMm(Dimension filled);
    QSize pxSize() const;
    void log(const char *line) const;

    bool m_must_relayout = false;
    float m_mm_width = 0;
    float m_mm_height = 0;
    double m_px_width = -1.0;
    double m_px_height = -1.0;
    QString m_filename;
};

} // namespace vexo::hox::qt::ui
