// SPDX-License-Identifier: MIT
#include "ui/painting/glyphextent_p.h"

#include <QGlyphRun>
#include <QTextLayout>

namespace vexo::hox::qt::ui {

QRectF glyphExtent(const QTextLayout &layout)
{
    QRectF extent;
    double height = 0;
    for (int i = 0; i < layout.lineCount(); ++i) {
        extent |= layout.lineAt(i).naturalTextRect();
        height = qMax(height, layout.lineAt(i).height());
    }
    QList<QGlyphRun> runs = layout.glyphRuns();
    for (QGlyphRun &run : runs) {
        run.setBoundingRect(QRectF()); // that of the line; the glyphs are asked instead
        extent |= run.boundingRect();
    }
    // The toolkit slants the letters of a font that has no slanted ones, and does not tell it.
    const double slant = layout.font().style() == QFont::StyleNormal ? 0 : height / 3;
    const double seam = 2; // letters are placed at fractions and smoothed
    return extent.adjusted(-seam - slant, -seam, seam + slant, seam);
}

} // namespace vexo::hox::qt::ui
