#pragma once
// SPDX-License-Identifier: MIT

#include <QSize>
#include <QSizeF>
#include <QStringList>

#include <optional>

namespace vexo::hox::qt::ui {

/// What Panel::setUp() does for an application. As constructed it does everything; each step can be
/// refused.
struct PanelOptions
{
    /// Pixels of the panel. Default: those of the primary screen.
    std::optional<QSize> px;
    /// Millimetres of the panel. Default: those of the primary screen, which many panels tell wrong
    /// or not at all.
    std::optional<QSizeF> mm;
    /// The toolkit's style "fusion", for which the stylesheets are made.
    bool use_style = true;
    /// Panel::palette(), for what has no rule in a stylesheet.
    bool use_palette = true;
    /// The library's fonts, the light one 7 pt high for the application (FontLoader).
    bool use_fonts = true;
    /// Stylesheet files, the later one wins where two say different things. Empty: none, and the
    /// application's sheet is left alone unless use_mm_sheet is set.
    QStringList sheets{ QStringLiteral(":/css/vexo-AAL.qs"), QStringLiteral(":/css/hoxq.qs") };
    /// Panel::mmSheet() behind the sheets.
    bool use_mm_sheet = true;
    /// How far a finger may slip on a row, check box or radio button that still clicks, mm; the
    /// distance at which a VexoVerticalScrollArea starts to scroll. 0 or less: 10 px on rows, 8 px
    /// on boxes, whatever that is on the panel. Holds for what is constructed afterwards.
    double tap_mm = 5;
};

} // namespace vexo::hox::qt::ui
